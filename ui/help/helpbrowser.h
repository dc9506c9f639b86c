/// \file
/// What the pane beside the pages shows: help from the network, its offline copy, or the plot of a capture.
#ifndef VELBRIN_UI_HELPBROWSER_H
#define VELBRIN_UI_HELPBROWSER_H

#include "helpview.h"

#include <QObject>
#include <QTimer>

class QLabel;
class QPushButton;
struct PageInfo;

/// Loads a page's help from the maker's wiki, and from local files for the rest of the run once that has failed. A plot
/// stays across changes of page until a link leads away from it. User-interface thread.
class HelpBrowser : public QObject
{
    Q_OBJECT

public:
    enum class Shows { Online, Offline, Plot };

    /// The view goes into `container`; `offlineNotice` says that an offline copy is shown.
    HelpBrowser(QWidget *container, QLabel *offlineNotice, HelpView::Engine engine);

    HelpView *view() const { return m_view; }

    /// The page is left: what still loads for it is given up.
    void leavePage();
    /// Loads the help of a page of the window, unless a plot is shown.
    void showHelpOf(const PageInfo &page);
    /// Shows a plot page, whose style and scripts come from the "flot" folder; see HelpView::showPlot.
    void showPlot(const QString &html, HelpView::Zoom zoom, const QJsonObject &scope);
    bool isPlotShown() const { return m_shows == Shows::Plot; }
    /// A link of the view or of a message: an address, or one of the plot page's own actions.
    void follow(const QUrl &url);

    /// The help that was asked for has come, or not.
    void loadFinished(bool ok);
    /// From now on help comes from local files.
    void goOffline();

    /// Begins to draw the plot that is shown into a file, see HelpView::savePng. saved() ends it.
    void savePng(const QString &file, int width);
    bool isSaving() const { return m_view->isSaving(); }

signals:
    /// The wiki did not answer in time.
    void timedOut();
    void saveWanted();               ///< the plot page's link, or the button
    void redrawWanted();             ///< the plot as it was captured, without any zoom
    void scopeLink(const QUrl &url); ///< of the bar and the tables around the charts
    void plotLeft();                 ///< for help or another address
    /// The picture is written, or not: then with the reason.
    void saved(const QString &failure);

private:
    void load();
    QUrl offlineCopyOf(const QUrl &url) const;

    HelpView *m_view;
    QLabel *m_offlineNotice;
    QPushButton *m_saveButton;
    QTimer m_limit{this};
    Shows m_shows = Shows::Online;
    Shows m_help = Shows::Online; ///< where help comes from, also while a plot is shown
    const PageInfo *m_page;
};

#endif
