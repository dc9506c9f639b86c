/// \file
/// The addresses that the pane's pages may have, and who answers for those of plots.
///
/// Plot pages have a scheme of their own, "velbrin-plot:": a text of several megabytes, which setHtml() would refuse,
/// and next to it the scripts of the "flot" folder under the addresses that the page gives them.
#ifndef VELBRIN_UI_PLOTSCHEME_H
#define VELBRIN_UI_PLOTSCHEME_H

#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineUrlSchemeHandler>

class QWebEngineProfile;

/// Once, before the application object is made.
void registerPlotScheme();
/// The address of a plot page whose relative addresses start at `base`, a local folder.
QUrl plotPageUrl(const QUrl &base);
bool isPlotPage(const QUrl &url);
/// Files of the working directory's "help" and "flot" folders, plot pages and resources.
bool isOwnPage(const QUrl &url);

/// Keeps pages of the network away from files and plots, and every page away from other people's files.
class RequestGate : public QWebEngineUrlRequestInterceptor
{
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void interceptRequest(QWebEngineUrlRequestInfo &info) override;
};

/// Answers for "velbrin-plot:" addresses: the page that is shown, and the files around it.
class PlotFiles : public QWebEngineUrlSchemeHandler
{
public:
    using QWebEngineUrlSchemeHandler::QWebEngineUrlSchemeHandler;

    QByteArray page;
    QUrl pageUrl;

    void requestStarted(QWebEngineUrlRequestJob *job) override;

    /// Has a profile ask here for plot pages.
    void installIn(QWebEngineProfile *profile);
};

#endif
