/// \file
/// What goes into a commissioning report: the machine's name, notes on changed settings, captures, the stop test.
#ifndef VELBRIN_UI_REPORTDIALOG_H
#define VELBRIN_UI_REPORTDIALOG_H

#include "capturehistory.h"
#include "report.h"

#include <QDialog>

class QComboBox;
class QLineEdit;
class QListWidget;
class QTableWidget;

/// Changes nothing outside of itself. User-interface thread.
class ReportDialog : public QDialog
{
    Q_OBJECT

public:
    /// `drive` has identity and settings of the drive that the report is about.
    ReportDialog(const Report &drive, const CaptureHistory &history, QWidget *parent);

    /// The drive's part with what was typed and chosen, as of now.
    Report report() const;

private:
    void addNotes();
    void addCaptures(const CaptureHistory &history);

    Report m_drive;
    QList<KeptCapture> m_captures; ///< the newest first, as they are listed
    QLineEdit *m_machine;
    QTableWidget *m_notes;
    QListWidget *m_list;
    QComboBox *m_stopTest;
};

#endif
