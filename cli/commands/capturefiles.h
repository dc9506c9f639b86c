/// \file
/// Where a capture goes to, and what is told about it.
#ifndef CAPTUREFILES_H
#define CAPTUREFILES_H

#include "capturedata.h"
#include "outputfile.h"
#include "parameters.h"
#include "results.h"

struct Capture
{
    QList<CaptureData> channels;
    Parameters settings; ///< for the page; empty without one
    QString model;
    double rate = 0.0; ///< Hz
};

/// One line a channel: key, unit, number of samples, first, lowest, highest and last value.
Results summary(const Capture &capture);

class CaptureFiles
{
public:
    /// Either name may be empty.
    CaptureFiles(const QString &csvName, const QString &pageName) : m_csv(csvName), m_page(pageName) {}

    bool hasPage() const { return m_page.isWanted(); }
    /// Before anything moves: a capture that cannot be kept is not worth a motion. Empty, or what is wrong.
    QString open();
    /// What went wrong, file by file; one that fails does not keep the other from being written.
    QStringList save(const Capture &capture);

private:
    OutputFile m_csv;
    OutputFile m_page;
    QString m_flotFolder;
};

#endif
