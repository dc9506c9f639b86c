/// \file
/// The pane beside the pages: help, or the plot of a capture. No header that others include knows the web engine.
#ifndef VELBRIN_UI_HELPVIEW_H
#define VELBRIN_UI_HELPVIEW_H

#include <QJsonObject>
#include <QUrl>
#include <QVariant>
#include <QWidget>
#include <functional>
#include <memory>

class QLabel;
class QStackedLayout;
struct HelpEngine;

/// Shows one page at a time. The engine (processes of its own, some 100 MB) is started behind the first paint of the
/// pane, so that it never delays the window; prepareEngine() (enginestart.h) has to come before the application object.
/// What is asked before it stands waits. Where it cannot start, or has died, the pane
/// says so in words and everything else goes on. User-interface thread.
///
/// A page may do what help and plots need and no more: no downloads, windows, permissions or stored data; local files
/// come from the working directory's "help" and "flot" folders only, and never into a page of the network.
class HelpView : public QWidget
{
    Q_OBJECT

public:
    /// Whether the engine may be used at all; without it the pane holds a note.
    enum class Engine { Allowed, Off };
    /// What happens to the zoom of a plot that is drawn again.
    enum class Zoom { Keep, Reset };

    explicit HelpView(QWidget *parent = nullptr, Engine engine = Engine::Allowed);
    ~HelpView() override;

    /// What is seen where an address cannot be loaded.
    enum class Failure {
        Shown,    ///< the engine's own page about it
        Replaced, ///< nothing: whoever asked loads another page at once; the engine's own takes a quarter of a second
    };
    /// Loads an address in place of whatever is loading.
    void loadPage(const QUrl &url, Failure failure = Failure::Shown);
    /// Shows a plot page. Relative addresses in it start at `base`, a folder of the working directory's "flot" folder.
    /// Over a plot that stands it is drawn into the page that is there; the zoom is kept for the same channels when
    /// asked for, cursors and units always.
    /// `scope` is what the scripts around the charts show (see ui/scope/scopecontext.h): texts in it are never markup.
    void showPlot(const QString &html, const QUrl &base, Zoom zoom, const QJsonObject &scope = {});
    /// Puts further members into the scope of the plot that is shown, if one is.
    void updateScope(const QJsonObject &news);
    /// Gives a load up, without a report.
    void stopLoading();

    static constexpr int narrowestPicture = 400;
    static constexpr int widestPicture = 1100; ///< pixels; a wider plot no longer fits a printed page

    /// Begins to draw the plot that is shown, zoom and cursors included, into a PNG file of the whole page, `width`
    /// pixels wide. pictureSaved() ends it, after 20 s at the latest. A second call while one is going on is ignored.
    void savePng(const QString &fileName, int width = widestPicture);
    bool isSaving() const;

    /// Runs a script in the page and hands over what it returned (nothing when there is no engine).
    void runScript(const QString &script, const std::function<void(const QVariant &)> &done = {});

signals:
    /// A link that leads out of the program's own pages, or to an action of the program ("tdext://...").
    void linkClicked(const QUrl &url);
    /// A load ended. Loads that were replaced or stopped are not reported: they say nothing about the network.
    void pageLoaded(bool ok);
    /// The picture is written, or not: then with the reason. An old file stays as it was.
    void pictureSaved(const QString &failure);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void startEngine();
    void listenToEngine();
    bool isRunning() const;
    void loadEnded(bool ok, const QUrl &url);
    void processEnded(const QString &how);
    void showNote(const QString &text);
    void loadWanted();
    void loadPlot();
    void redrawPlot(Zoom zoom);
    void pictureEnded(const QString &failure);

    Engine m_use;
    QStackedLayout *m_stack;
    QLabel *m_note;
    QString m_noteText;
    std::unique_ptr<HelpEngine> m_engine; ///< once started
    bool m_begun = false;                 ///< the start is on its way
    bool m_loading = false;               ///< whoever asked for the page waits for its end
    bool m_isUnderWay = false;            ///< no end of the last load was reported yet
    bool m_replaces = false;              ///< the wanted load has not begun, and the one before may still fail
    QUrl m_wantedUrl;                     ///< the page on display, or to be loaded as soon as the engine stands
    Failure m_failure = Failure::Shown;
    QString m_plainPlot; ///< text of the plot page as it was given
    QJsonObject m_scope; ///< what stands in it for the scripts around the charts
    QString m_plot;      ///< the two together; empty while help is shown
    QUrl m_plotBase;
};

#endif
