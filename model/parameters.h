/// \file
/// The ordered list of drive parameters, and the settings file (*.drc) that stores it.
#ifndef VELBRIN_MODEL_PARAMETERS_H
#define VELBRIN_MODEL_PARAMETERS_H

#include "singleparam.h"

#include <QCoreApplication>
#include <QList>

/// What became of a settings file.
enum class LoadOutcome {
    Taken,
    TakenWithWarning, ///< the values are in the list, but not from a drive like the connected one
    Refused,          ///< the list is unchanged
};

/// An implicitly shared list of SingleParam in catalogue order, which is the order of reading, writing, listing and
/// saving. Copies may travel between threads; a copy has no lock and belongs to one thread at a time.
class Parameters
{
    Q_DECLARE_TR_FUNCTIONS(Parameters)

public:
    int getParamCount() const;

    /// Appends a record; fields that are not given keep their defaults.
    void addParameter(int addr, const QString &name, double scaling, double offset, bool readonly, bool auxFlag,
                      const QString &devices);
    void addParameter(const SingleParam &p);

    /// Copy of the first record with exactly this name, or a default record named "NULL".
    SingleParam getParam(const QString &name) const;
    /// Copy of the record at `index`, which must lie in 0..count-1 (not checked).
    SingleParam getParam(int index) const;

    /// Overwrites every field of the record at `index`; returns whether the value changed (also true with a NaN).
    bool replaceParam(const SingleParam &p, int index);
    /// The same for the first record named `p.name`; false and no change when there is none.
    bool replaceParam(const SingleParam &p);

    /// The list as an HTML table, four parameters to a row.
    QString getParamsHTMLList() const;

    // settingsfile.cpp

    /// Writes the settings file through a temporary file and a rename, so that a failure leaves an old file whole.
    /// Returns an empty string, or the text to show. In a list that no drive has filled (HWTYPE 0) some settings get
    /// their start value, since their 0 means "None".
    QString saveToFile(const QString &fileName) const;
    /// Takes the values of a settings file over. Returns an empty string, or the text to show: a warning (which begins
    /// with "Warning") or why the file is refused. Numbers that are none, not finite, or a scaling of 0 are refused:
    /// they would end up in a drive; so is a file that lacks its end. Of a file that was saved without a drive, what
    /// nobody has set does not replace what a drive has. The file is only read.
    QString loadFromFile(const QString &fileName, LoadOutcome *outcome = nullptr);

    /// What a setting is taken to be until a drive has been read; 0 for most. Nobody's setting: never sent to a drive.
    static double startValue(const QString &name);

private:
    QString load(const QString &fileName, LoadOutcome &outcome);

    QList<SingleParam> m_list;
};

Q_DECLARE_METATYPE(Parameters)

#endif
