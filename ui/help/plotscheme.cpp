#include "plotscheme.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QMimeDatabase>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInfo>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

namespace {

const char *const plotScheme = "velbrin-plot";
const char *const plotHost = "capture";

/// Local pages and their parts come from two folders. What links in them lead to is ours as well.
bool isOwnFile(const QUrl &url)
{
    const QString file = QDir::cleanPath(url.toLocalFile());
    return file.startsWith(QDir::current().filePath(QStringLiteral("help/"))) ||
           file.startsWith(QDir::current().filePath(QStringLiteral("flot/")));
}

} // namespace

void registerPlotScheme()
{
    QWebEngineUrlScheme scheme(plotScheme);
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
    scheme.setFlags(QWebEngineUrlScheme::SecureScheme | QWebEngineUrlScheme::ViewSourceAllowed);
    QWebEngineUrlScheme::registerScheme(scheme);
}

QUrl plotPageUrl(const QUrl &base)
{
    QUrl url = base;
    url.setScheme(QLatin1String(plotScheme));
    url.setHost(QLatin1String(plotHost));
    return url;
}

bool isPlotPage(const QUrl &url)
{
    return url.scheme() == QLatin1String(plotScheme);
}

bool isOwnPage(const QUrl &url)
{
    return (url.isLocalFile() && isOwnFile(url)) || isPlotPage(url) || url.scheme() == QLatin1String("qrc");
}

void RequestGate::interceptRequest(QWebEngineUrlRequestInfo &info)
{
    const QUrl url = info.requestUrl();
    if (url.scheme() != QLatin1String("file") && !isPlotPage(url))
        return;
    const QString asker = info.initiator().scheme(); // empty: the program itself
    const bool askedByNetwork = asker.startsWith(QLatin1String("http"));
    info.block(askedByNetwork || !isOwnPage(url));
}

void PlotFiles::installIn(QWebEngineProfile *profile)
{
    profile->installUrlSchemeHandler(plotScheme, this);
}

void PlotFiles::requestStarted(QWebEngineUrlRequestJob *job)
{
    const QUrl url = job->requestUrl();
    auto *content = new QBuffer(job);
    if (url.path() == pageUrl.path()) {
        content->setData(page);
        job->reply("text/html; charset=utf-8", content);
        return;
    }
    QFile file(url.path());
    if (!isOwnFile(QUrl::fromLocalFile(file.fileName())) || !file.open(QIODevice::ReadOnly))
        return job->fail(QWebEngineUrlRequestJob::UrlNotFound);
    content->setData(file.readAll());
    job->reply(QMimeDatabase().mimeTypeForFile(file.fileName(), QMimeDatabase::MatchExtension).name().toLatin1(),
               content);
}
