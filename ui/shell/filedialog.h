/// \file
/// Asking for the name of a file. The toolkit's own dialog, never the desktop's, which would keep Esc to itself: Esc
/// has to reach the drive from here as well.
#ifndef VELBRIN_UI_FILEDIALOG_H
#define VELBRIN_UI_FILEDIALOG_H

#include <QString>

class QWidget;

/// What a file dialog starts with. "~" at the beginning of `start` is the home folder.
struct FileQuestion
{
    QString title;
    QString start;            ///< a folder, or a folder and a proposed name
    QString filters;          ///< as QFileDialog takes them
    QString defaultSuffix;    ///< added to a name without one
    QString moreCaption = {}; ///< of one more control below the names
    QWidget *more = nullptr;  ///< that control; it stays the caller's
};

/// The name of an existing file, empty when the user gave none.
QString askFileToOpen(QWidget *parent, const FileQuestion &question);
/// The name to save under, empty when the user gave none; `filter` is the one that was chosen.
QString askFileToSave(QWidget *parent, const FileQuestion &question, QString *filter = nullptr);

/// The folder of a file name, for the next question.
QString folderOf(const QString &file);

#endif
