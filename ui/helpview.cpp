#include "helpview.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QScopedValueRollback>
#include <QWebFrame>
#include <QWebPage>

namespace {

// Wider than this a saved plot no longer fits a printed page.
constexpr int MAX_IMAGE_WIDTH = 1100;

} // namespace

HelpView::HelpView(QWidget *parent) : QWebView(parent)
{
    // Pages of our own and the maker's open here; every other link is asked about by the window.
    page()->setLinkDelegationPolicy(QWebPage::DelegateExternalLinks);
    connect(this, &QWebView::loadFinished, this, [this](bool ok) {
        if (!m_replacing)
            emit pageLoaded(ok);
    });
}

void HelpView::loadPage(const QUrl &url)
{
    QScopedValueRollback<bool> replacing(m_replacing, true);
    stop();
    load(url);
}

void HelpView::showPage(const QString &html, const QUrl &base)
{
    QScopedValueRollback<bool> replacing(m_replacing, true);
    stop();
    setHtml(html, base);
}

void HelpView::stopLoading()
{
    QScopedValueRollback<bool> replacing(m_replacing, true);
    stop();
}

QString HelpView::savePng(const QString &fileName)
{
    const QSize before = page()->viewportSize();
    const QSize content = page()->mainFrame()->contentsSize();
    page()->setViewportSize({qMin(content.width(), MAX_IMAGE_WIDTH), content.height()});
    QImage image(page()->viewportSize(), QImage::Format_ARGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    page()->mainFrame()->render(&painter);
    painter.end();
    page()->setViewportSize(before);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    QFile file(fileName);
    // Flushed here: a full disk shows only when the bytes really go out.
    if (!bytes.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush())
        return QString();
    return QCoreApplication::translate("MW", "Error writing graphs to file %1: %2")
        .arg(QDir::toNativeSeparators(fileName), file.errorString());
}
