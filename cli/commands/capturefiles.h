/// \file
/// Where a capture goes to, and what is told about it.
#ifndef VELBRIN_CLI_CAPTUREFILES_H
#define VELBRIN_CLI_CAPTUREFILES_H

#include "capture.h"
#include "outputfile.h"
#include "results.h"

/// In text one line a channel: key, unit, number of samples, first, lowest, highest and last value. In JSON the whole
/// capture with its figures, which "figures" opens again; each channel has these numbers beside its values.
Results summary(const CaptureRecord &capture);

class CaptureFiles
{
public:
    enum class Columns {
        Semicolons, ///< a line of names
        Commas,     ///< a line of names and one of units, for spreadsheets
    };

    /// Either name may be empty.
    CaptureFiles(const QString &csvName, Columns columns, const QString &pageName)
        : m_csv(csvName), m_columns(columns), m_page(pageName)
    {
    }

    bool hasPage() const { return m_page.isWanted(); }
    /// Before anything moves: a capture that cannot be kept is not worth a motion. Empty, or what is wrong.
    QString open();
    /// What went wrong, file by file; one that fails does not keep the other from being written.
    QStringList save(const CaptureRecord &capture);

private:
    OutputFile m_csv;
    Columns m_columns;
    OutputFile m_page;
    QString m_flotFolder;
};

#endif
