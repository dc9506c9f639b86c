/// \file
/// The picture of a plot page, drawn by a view that is not on the screen.
#ifndef VELBRIN_UI_PLOTPICTURE_H
#define VELBRIN_UI_PLOTPICTURE_H

#include "helppage.h"

#include <QElapsedTimer>
#include <QImage>
#include <QTimer>
#include <QWebEngineView>

/// A plot page drawn once more and written to a PNG file. Looks until two pictures in a row are the same: only then has
/// everything been drawn. User-interface thread.
class PlotPicture : public QObject
{
    Q_OBJECT

public:
    /// Loads `url`; the picture will be `width` pixels wide, whatever the scale of the screen, and as high as the page.
    PlotPicture(QWebEngineProfile *profile, const QUrl &url, const QString &file, int width);

    /// `state`: zoom, cursors and units on the screen, as the page's script tells them. Nothing is drawn before.
    void begin(const QString &state);
    bool hasBegun() const { return !m_state.isEmpty(); }
    /// Ends it without a file, for the reason given. Nothing happens when it has ended already.
    void giveUp(const QString &reason) { end(reason); }

signals:
    /// Once: the file is written, or not, after 20 s at the latest and at once when the engine's process dies; then
    /// with the reason. Nobody may delete the picture within this call.
    void ended(const QString &failure);

private:
    void look();
    void take(const QVariant &answer);
    void compare();
    static bool isBlank(const QImage &image);
    void write(QImage image);
    void end(const QString &failure);

    QString m_file;
    int m_width;
    HelpPage m_page;
    QWebEngineView m_view; // goes before its page
    QTimer m_timer;
    QElapsedTimer m_sinceStart;
    QString m_state;
    int m_height = 0; ///< of the whole page, once it is drawn
    bool m_painted = false;
    bool m_hasEnded = false;
    bool m_asking = false; ///< the page has not answered yet
    QImage m_last;
};

#endif
