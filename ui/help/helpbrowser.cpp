#include "helpbrowser.h"

#include "makerlinks.h"
#include "offlinehelp.h"
#include "pagetable.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLayout>
#include <QPushButton>

namespace {
constexpr int timeLimitMs = 60000;
}

HelpBrowser::HelpBrowser(QWidget *container, QLabel *offlineNotice, HelpView::Engine engine)
    : QObject(container), m_view(new HelpView(container, engine)), m_offlineNotice(offlineNotice),
      m_saveButton(new QPushButton(tr("Save as PDF"), m_view)), m_page(&pageTable().front())
{
    m_view->setObjectName(QStringLiteral("helpView"));
    container->layout()->addWidget(m_view);
    m_offlineNotice->hide();
    m_saveButton->hide();
    connect(m_saveButton, &QPushButton::clicked, this, &HelpBrowser::saveWanted);
    connect(m_view, &HelpView::pictureSaved, this, [this](const QString &failure) {
        m_saveButton->setEnabled(true);
        emit saved(failure);
    });
    m_limit.setSingleShot(true);
    m_limit.setInterval(timeLimitMs);
    connect(&m_limit, &QTimer::timeout, this, &HelpBrowser::timedOut);
}

void HelpBrowser::leavePage()
{
    if (m_shows == Shows::Plot)
        return;
    m_limit.stop();
    m_view->stopLoading();
}

void HelpBrowser::showHelpOf(const PageInfo &page)
{
    m_page = &page;
    if (m_shows != Shows::Plot)
        load();
}

void HelpBrowser::load()
{
    qDebug() << "   start loading";
    m_shows = m_help;
    if (m_help == Shows::Offline) {
        m_view->loadPage(offlineHelpPage(QFileInfo(QLatin1String(m_page->helpFile)).fileName()));
        m_offlineNotice->show(); // second: the window is laid out anew for it, while the page loads
        return;
    }
    m_offlineNotice->hide();
    qDebug() << "   try online";
    m_limit.start();
    m_view->loadPage(QUrl(makerWikiPage(QLatin1String(m_page->wikiPath))), HelpView::Failure::Replaced);
}

void HelpBrowser::loadFinished(bool ok)
{
    qDebug() << "   help load finished, success=" << (ok ? "true" : "false");
    if (!ok && m_help == Shows::Online && m_limit.isActive())
        goOffline();
    m_limit.stop();
}

void HelpBrowser::goOffline()
{
    qDebug() << "   LOAD TIMEOUTED";
    m_limit.stop();
    m_help = Shows::Offline;
    // A line that stays, instead of a box at every start of whoever works without a network.
    m_offlineNotice->setText(
        tr("Loading of online documentation Wiki failed (no internet?), displaying an offline copy. It is advised to "
           "check out latest documentation at <a>%1</a>.")
            .arg(makerWikiBase().toHtmlEscaped()));
    m_view->stopLoading();
    showHelpOf(*m_page);
}

void HelpBrowser::showPlot(const QString &html, HelpView::Zoom zoom, const QJsonObject &scope)
{
    m_limit.stop(); // a help page that was still loading is given up, which says nothing about the network
    m_offlineNotice->hide();
    m_shows = Shows::Plot;
    const QUrl base(QLatin1String("file:///") + QDir::currentPath() + QLatin1String("/flot/examples/"));
    m_view->showPlot(html, base, zoom, scope);
}

void HelpBrowser::follow(const QUrl &url)
{
    const QString text = url.toString();
    qDebug() << text;
    if (text.contains(QLatin1String("exportpdf"))) {
        emit saveWanted();
    } else if (text.contains(QLatin1String("reloadplots"))) {
        emit redrawWanted();
    } else if (text.contains(QLatin1String("showhelp"))) {
        m_shows = m_help;
        leavePage();
        load();
        emit plotLeft();
    } else if (url.scheme() == QLatin1String("tdext")) {
        if (m_shows == Shows::Plot) // no other page has a say in the scope
            emit scopeLink(url);
    } else {
        m_limit.stop();   // the page that was loading is given up, which says nothing about the network
        m_shows = m_help; // a plot that stood here is gone, and with it its link back to the help
        m_view->loadPage(offlineCopyOf(url));
        emit plotLeft();
    }
}

/// The page of the same name among the offline pages once help is offline; any other address stays as it is.
QUrl HelpBrowser::offlineCopyOf(const QUrl &url) const
{
    if (m_help != Shows::Offline || !url.toString().startsWith(makerWikiBase()))
        return url;
    const QUrl copy = offlineHelpPage(url.fileName() + QLatin1String(".htm"));
    return QFileInfo::exists(copy.toLocalFile()) ? copy : url;
}

void HelpBrowser::savePng(const QString &file, int width)
{
    m_saveButton->setEnabled(false);
    m_view->savePng(file, width);
}
