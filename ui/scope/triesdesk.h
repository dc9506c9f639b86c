/// \file
/// The scope in the window: tries and gains on the Testing page, the plot view over the pages, files and the report.
#ifndef VELBRIN_UI_TRIESDESK_H
#define VELBRIN_UI_TRIESDESK_H

#include "capturehistory.h"
#include "reports.h"

#include <QObject>

class ApplyDesk;
class ConnectPage;
class Connection;
class EditedSettings;
class FileWork;
class GainsPanel;
class HelpBrowser;
class ParameterPages;
class QVBoxLayout;
class ScopeDesk;
class TriesPanel;

/// Moves nothing and writes nothing to a drive: what it takes from a capture becomes an edit in the pages, for Apply.
/// Of the session it asks what the drive has, for the report. User-interface thread.
class TriesDesk : public QObject
{
    Q_OBJECT

public:
    struct Helpers
    {
        const EditedSettings &settings;
        ParameterPages *pages;
        ApplyDesk *apply;
        const ConnectPage *connect; ///< knows the drive's address
        HelpBrowser *browser;       ///< shows plots
        Reports reports;
    };
    /// Its panels go into `layout` of the Testing page; `pagesPane` is what the charts take the place of.
    TriesDesk(QWidget *window, QVBoxLayout *layout, QWidget *pagesPane, const Connection &session,
              const Helpers &helpers);

    void captured(const CaptureRecord &record);
    /// The capture on display once more.
    void redraw(bool keepZoom);
    /// Asks for a name and writes the capture on display, as a picture, a page or columns.
    void save();
    /// Asks for a file; with or without a drive.
    void open();
    void writeReport();
    /// The charts over the pages, or back; without a plot it says so.
    void toggleOpenedOut();
    void showLimits(); ///< a drive was read

private:
    void connectPanels();
    void connectFiles();
    void setOpenedOut(bool openedOut);
    void takeSettingsOf(int id);
    void putIntoPages(const QList<QPair<QString, double>> &settings);
    void fail(const QString &fileName, const QString &problem);

    QWidget *m_window;
    QWidget *m_pagesPane;
    const Connection &m_session;
    Helpers m_use;
    ScopeDesk *m_scope;
    GainsPanel *m_gains;
    TriesPanel *m_tries;
    FileWork *m_captureFiles;
    FileWork *m_reportFiles;
    QString m_lastFolder = QStringLiteral("~");
    bool m_openedOut = false;
};

#endif
