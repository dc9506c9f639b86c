/// \file
/// The drive at a glance: the strip, the marks at fields and values, undo, and what an Apply came to.
#ifndef VELBRIN_UI_DRIVEBOARD_H
#define VELBRIN_UI_DRIVEBOARD_H

#include "connection.h"
#include "editedsettings.h"
#include "edithistory.h"
#include "settingchanges.h"
#include "settingfields.h"
#include "valuemarks.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

class ActWatch;
class EditMarks;
class QBoxLayout;
class SettingFinder;
class StatusStrip;

/// Stands beside the window's pages: it is told what happens, shows it, and never acts on a drive. What the user asks
/// for here comes out as a signal, for the slot that the same button of a page has. User-interface thread.
class DriveBoard : public QObject
{
    Q_OBJECT

public:
    /// `settings` has to hold what the controls show whenever refresh() is called. The strip goes to the top of
    /// `layout`.
    DriveBoard(QWidget *window, QBoxLayout *layout, const Connection &session, const EditedSettings &settings);
    ~DriveBoard() override;

    const SettingFields &fields() const { return m_fields; }
    StatusStrip *strip() const { return m_strip; }
    ActWatch *acts() const { return m_acts; }
    void undo() { m_history.undo(); }
    void redo() { m_history.redo(); }

    // --- What happens -----------------------------------------------------------------------------------------

    /// Another drive, or the same one again: steps and marks of the former one must not reach it.
    void connectingTo(int address);
    /// `lostByUser`: the user has asked for the end of the connection.
    void connectionChanged(bool connected);
    /// The program is going to fill the controls in.
    void fillingBegins();
    /// It has. Of a file, `fileName` is where it came from.
    void fillingEnds(const QString &fileName = QString());
    /// Marks, counts and words anew.
    void refresh();
    /// Says at a field what a rule has made of it.
    void note(const QString &field, const QString &text);

    // --- Apply ------------------------------------------------------------------------------------------------

    /// Fields that hold another value than the drive, as of the last refresh().
    const QList<SettingChange> &changes() const { return m_changes; }
    /// Shows the list of changes where one is due; whether to go on. `warnings` is HTML.
    bool confirmApply(const QString &warnings);
    /// The edits and a full read behind them have been asked for.
    void applyBegins();
    /// A full read has come: true when a later one is on its way, and this one is to be passed over.
    bool isOutdatedRead();
    /// Whether the read that has come is the one behind an apply.
    bool isReadBack() const { return m_apply.isArriving; }
    void saveToDriveBegins();

public slots:
    void saveToDriveEnded(bool done);
    void savedToFile(const QString &fileName, const Parameters &list);
    void openFinder();

signals:
    /// For the status bar.
    void report(const QString &text);
    /// The controls have changed: read them into the settings and call refresh().
    void refreshAsked();
    void enableAsked();
    void disableAsked();
    void clearFaultsAsked();
    void saveToDriveAsked();
    void faultHelpAsked(int faultBit);
    void settingChosen(const QString &name);

private:
    /// An apply whose read behind it has not come.
    struct Apply
    {
        int readsAwaited = 0;
        bool isArriving = false;
        Parameters before;
        Parameters wanted;
        QHash<QString, double> shown; ///< of each field when the edits were handed over
    };
    /// A number that is just being typed while the program fills the fields in.
    struct Typing
    {
        QPointer<QWidget> box;
        QString text;
        int cursor = 0;
    };
    /// Edits that the drive had not been given when its connection was lost.
    struct Stranded
    {
        double serialNumber = 0; ///< of that drive
        QHash<QString, double> fields;
    };

    QString model() const;
    void keepNewerEdits();
    void tellApplied();
    void rememberStranded();
    void offerStranded();
    void rememberTyping();
    void restoreTyping();

    const Connection &m_session;
    const EditedSettings &m_settings;
    SettingFields m_fields;
    EditHistory m_history;
    EditMarks *m_marks;
    StatusStrip *m_strip;
    ValueMarks *m_homes;
    ActWatch *m_acts;
    SettingFinder *m_finder;
    QTimer m_refreshTimer;
    QList<SettingChange> m_changes;
    Apply m_apply;
    Typing m_typing;
    Stranded m_stranded;
    QHash<QString, double> m_newer; ///< edits made while the read behind an apply was on its way
    ValueHomes::Flash m_flash = ValueHomes::Flash::Unknown;
    QString m_fileName;
    Parameters m_fileList; ///< what that file holds
};

#endif
