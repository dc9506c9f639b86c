#include "helppage.h"

#include "offlinehelp.h"
#include "plotscheme.h"

#include <QWebEngineNewWindowRequest>
#include <QWebEngineSettings>

HelpPage::HelpPage(QWebEngineProfile *profile, QObject *owner) : QWebEnginePage(profile, owner)
{
    QWebEngineSettings *can = settings();
    for (const auto denied :
         {QWebEngineSettings::PluginsEnabled, QWebEngineSettings::PdfViewerEnabled, QWebEngineSettings::WebGLEnabled,
          QWebEngineSettings::JavascriptCanOpenWindows, QWebEngineSettings::JavascriptCanAccessClipboard,
          QWebEngineSettings::LocalContentCanAccessRemoteUrls, QWebEngineSettings::FullScreenSupportEnabled,
          QWebEngineSettings::ScreenCaptureEnabled, QWebEngineSettings::NavigateOnDropEnabled})
        can->setAttribute(denied, false);
    // Pages that would open a window of their own are handed out like any other link.
    connect(this, &QWebEnginePage::newWindowRequested, this,
            [this](QWebEngineNewWindowRequest &request) { emit linkHandedOut(request.requestedUrl()); });
}

bool HelpPage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame)
{
    const bool fromNetwork = this->url().scheme().startsWith(QLatin1String("http"));
    const bool isLink = type == NavigationTypeLinkClicked;
    const QUrl page = inShownLanguage(url);
    if (isOwnPage(url) && !(fromNetwork && isLink) && !(isLink && page != url))
        return true;
    if (isLink) {
        emit linkHandedOut(page);
        return false;
    }
    return isMainFrame && url.scheme().startsWith(QLatin1String("http"));
}
