/// \file
/// The view beside the pages: help, or the plot of a capture. This pair of files is the only one that touches QtWebKit.
#ifndef HELPVIEW_H
#define HELPVIEW_H

#include <QWebView>

/// A web view that tells a failed load from one that was merely replaced by the next.
class HelpView : public QWebView
{
    Q_OBJECT

public:
    explicit HelpView(QWidget *parent = nullptr);

    /// Loads an address in place of whatever is loading.
    void loadPage(const QUrl &url);
    /// Shows a page given as text; relative links in it start at `base`.
    void showPage(const QString &html, const QUrl &base);
    /// Gives a load up, without a report.
    void stopLoading();

    /// Draws the whole page (at most 1100 pixels wide) into a PNG file. Returns an empty text, or why it failed.
    QString savePng(const QString &fileName);

signals:
    /// A load ended. Loads that were replaced or stopped are not reported: the engine ends them with "failed", which
    /// would be taken for a missing network.
    void pageLoaded(bool ok);

private:
    bool m_replacing = false;
};

#endif
