/// \file
/// What becomes of captures in the window: kept, shown, laid under each other, worked out, opened from files.
#ifndef VELBRIN_UI_SCOPEDESK_H
#define VELBRIN_UI_SCOPEDESK_H

#include "capturestudies.h"

#include <QJsonObject>

class QUrl;

/// Whoever owns the plot view connects its signals; it asks for nothing of the drive and changes no setting by itself.
/// User-interface thread.
class ScopeDesk : public QObject
{
    Q_OBJECT

public:
    explicit ScopeDesk(QObject *parent = nullptr);

    /// What the recorder can record: columns of text files are known by these names.
    void setKnownChannels(const QList<CaptureData> &channels) { m_known = channels; }

    /// A capture has come: it is kept and shown.
    void captured(const CaptureRecord &record);
    /// Opens a saved capture, with or without a drive. Returns an empty text, or why not, as text without markup; then
    /// everything is as it was.
    QString openFile(const QString &fileName);

    void show(int id);
    /// In grey under the capture that is shown, or under the newest other one when this is shown; 0 takes it away.
    void layUnder(int id);
    /// The user's own words on a capture: shown, saved with it and in the report.
    void setNote(int id, const QString &note);
    /// The page of the capture that is shown, once more; before the first capture an empty one.
    void redraw(bool keepZoom);

    /// A link of the bar or the tables. False when it is none of them.
    bool follow(const QUrl &url);

    const CaptureHistory &history() const { return m_history; }

signals:
    /// To be shown in the plot view; see HelpView::showPlot.
    void plotReady(const QString &page, const QJsonObject &scope, bool keepZoom);
    /// For the plot that is shown; see HelpView::updateScope.
    void scopeChanged(const QJsonObject &news);
    /// A capture came, its figures came, or another one is shown.
    void historyChanged();

    // The user has pressed a link.
    void openOutWanted();
    void openFileWanted();
    /// The proposal of the axis sheet that is shown: settings and values.
    void settingsWanted(const QList<QPair<QString, double>> &settings);

private:
    void keep(const CaptureRecord &record, const QString &file);
    void figuresCame(int id, const CaptureFigures &figures);
    void takeFeedForward();

    CaptureHistory m_history;
    CaptureStudies m_studies;
    QList<CaptureData> m_known;
};

#endif
