/// \file
/// Where the values live: four marks, and the button that saves what a power-off would take.
#ifndef VELBRIN_UI_VALUEMARKS_H
#define VELBRIN_UI_VALUEMARKS_H

#include "parameters.h"

#include <QWidget>

class QLabel;
class QPushButton;

/// What the marks are about, at one moment.
struct ValueHomes
{
    /// What is known of the drive's non-volatile memory.
    enum class Flash {
        Unknown, ///< nothing was applied or saved in this connection
        Behind,  ///< the working memory holds what a power-off takes
        Saving,  ///< asked for, not answered yet
        Saved,   ///< the drive has answered that it holds the same
    };
    int changes = 0;         ///< fields that hold another value than the drive
    bool isPending = false;  ///< also a file that was loaded and differs in nothing
    bool driveKnown = false; ///< the values of the connected drive have been read
    Flash flash = Flash::Unknown;
    QString file; ///< name of the file that holds exactly what is shown; empty when none is known
};

/// One line of four marks. A full disc stands for "yes", an open one for "no"; the words say it too.
class ValueMarks : public QWidget
{
    Q_OBJECT

public:
    explicit ValueMarks(QWidget *parent = nullptr);
    void show(const ValueHomes &homes);

signals:
    void saveToDriveAsked();

private:
    QLabel *m_edited;
    QLabel *m_working;
    QLabel *m_flash;
    QLabel *m_file;
    QPushButton *m_save;
};

/// Whether two lists hold the same settings, as they go over the bus. What is only read, and what a drive lacks on both
/// sides, does not count.
bool holdSameSettings(const Parameters &first, const Parameters &second);

#endif
