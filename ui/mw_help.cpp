// Pages and the view beside them: online help, its offline copy, or the plot of a capture.
#include "helpview.h"
#include "makerlinks.h"
#include "mw.h"
#include "mwforms.h"
#include "pagetable.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QSignalBlocker>
#include <QTimer>

void MW::pageChanged()
{
    const auto selected = m_form->pageSelector->selectedItems();
    if (selected.isEmpty()) {
        // Ctrl+click takes the selection away; a page is on display all the same.
        QSignalBlocker blocker(m_form->pageSelector);
        m_form->pageSelector->setCurrentRow(m_currentPage, QItemSelectionModel::ClearAndSelect);
        return;
    }
    const int previousPage = m_currentPage;
    m_currentPage = m_form->pageSelector->row(selected.first());
    m_form->pages->setCurrentIndex(m_currentPage);
    const bool hasSettings = pageTable[m_currentPage].hasSettings;
    m_form->apply_button->setVisible(hasSettings);
    if (hasSettings)
        updateApplyButtonState();
    if (m_helpEnabled) {
        m_helpTimer->stop();
        m_helpView->stopLoading();
    }
    if (m_currentPage == TestingPageIndex && previousPage != TestingPageIndex)
        checkIfParamsChangedAndAskUser(AskBeforeTesting);
    if (m_helpEnabled) // no plot is on display, nor has one come during the question
        loadHelp();
}

void MW::loadHelp()
{
    const PageInfo &page = pageTable[m_currentPage];
    qDebug() << "   start loading";
    if (m_offlineHelp) {
        m_helpView->loadPage(QUrl(QLatin1String("file:///") + QDir::currentPath() + QLatin1String(page.helpFile)));
        m_form->offlineHelpNotification->show();
        return;
    }
    qDebug() << "   try online";
    m_form->offlineHelpNotification->hide();
    m_helpTimer->start();
    m_helpView->loadPage(QUrl(makerWikiPage(QLatin1String(page.wikiPath))));
}

void MW::helpViewLoadFinished(bool ok)
{
    qDebug() << "   help load finished, success=" << (ok ? "true" : "false");
    if (!ok && !m_offlineHelp && m_helpTimer->isActive())
        helpLoadingTimeouted();
    m_helpTimer->stop();
}

void MW::helpLoadingTimeouted()
{
    qDebug() << "   LOAD TIMEOUTED";
    m_helpTimer->stop();
    m_offlineHelp = true;
    // A line that stays, instead of a box at every start of whoever works without a network.
    m_form->offlineHelpNotification->setText(
        tr("Loading of online documentation Wiki failed (no internet?), displaying an offline copy. It is advised to "
           "check out latest documentation at <a>%1</a>.")
            .arg(makerWikiBase().toHtmlEscaped()));
    m_helpView->stopLoading();
    pageChanged();
}

void MW::browserLinkClicked(QUrl url)
{
    const QString text = url.toString();
    qDebug() << text;
    if (text.contains(QLatin1String("exportpdf"))) {
        saveTestResults_clicked();
    } else if (text.contains(QLatin1String("reloadplots"))) {
        showPlotPage(HelpView::Zoom::Reset);
    } else if (text.contains(QLatin1String("showhelp"))) {
        m_helpEnabled = true;
        pageChanged();
    } else {
        m_helpTimer->stop();  // the page that was loading is given up, which says nothing about the network
        m_helpEnabled = true; // a plot that stood here is gone, and with it its link back to the help
        m_helpView->loadPage(offlineCopyOf(url));
    }
}

QUrl MW::offlineCopyOf(const QUrl &url) const
{
    if (!m_offlineHelp || !url.toString().startsWith(makerWikiBase()))
        return url;
    const QString copy = QDir::currentPath() + QLatin1String("/help/") + url.fileName() + QLatin1String(".htm");
    return QFileInfo::exists(copy) ? QUrl::fromLocalFile(copy) : url;
}
