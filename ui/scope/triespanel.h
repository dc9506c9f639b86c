/// \file
/// The table of tries on the Testing page: a capture a row, with the settings that differ and the figures that matter.
#ifndef VELBRIN_UI_TRIESPANEL_H
#define VELBRIN_UI_TRIESPANEL_H

#include "capturehistory.h"

#include <QGroupBox>

class QPushButton;
class QTableWidget;

/// Shows and asks; what is asked for is done elsewhere. User-interface thread.
class TriesPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit TriesPanel(QWidget *parent = nullptr);

    /// The newest on top. The row of the capture that is shown is the selected one. Nothing changes under somebody who
    /// types a note; refreshWanted() comes after that.
    void show(const CaptureHistory &history);

signals:
    void showWanted(int id);
    void layUnderWanted(int id);
    /// Put the settings of this try into the pages.
    void takeWanted(int id);
    void noteEdited(int id, const QString &note);
    void refreshWanted();
    void openFileWanted();
    void reportWanted();

private:
    void buildTable();
    void connectNotes();
    bool isTyping() const;
    void fitColumns(int note);
    void fillRow(int row, const KeptCapture &capture, const QStringList &settings);
    int chosen() const; ///< id, 0 when there is none
    QPushButton *addButton(const QString &name, const QString &text, const QString &toolTip);

    QTableWidget *m_table;
    QPushButton *m_take;
    QPushButton *m_under;
};

#endif
