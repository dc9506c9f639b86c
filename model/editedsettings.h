/// \file
/// The settings while somebody works on them: as the drive holds them, as they are shown, as they are edited.
#ifndef VELBRIN_MODEL_EDITEDSETTINGS_H
#define VELBRIN_MODEL_EDITEDSETTINGS_H

#include "parameters.h"

#include <QHash>

/// What a control made of a value. It may hold fewer decimals than the drive: while nobody edits it, it stands for
/// exactly the value that came in.
struct ShownValue
{
    double control; ///< what the control holds
    double exact;   ///< what that stands for until the control is edited
};

/// A setting that the drive would hold otherwise, in display units.
struct Difference
{
    QString name;
    double drive = 0.0;
    double wanted = 0.0;
};

/// The writable settings of the model named `modelName` whose wanted value is another one on the drive's own scale, so
/// that what only rounding makes is none; in the order of `wanted`. What is writable `catalogue` says, the program's
/// own list: a list that came from a file may claim anything.
QList<Difference> differences(const Parameters &drive, const Parameters &wanted, const Parameters &catalogue,
                              const QString &modelName);

/// One list of records, in catalogue order, and three questions about it: where it came from, whether it holds edits
/// that the drive has not been given, and whether the drive has stored what it was given. Plain values without a
/// control; one thread at a time.
///
/// The order of calls: accept() a list, showAs() for each record that got a control, edit() with what the controls then
/// hold, and settle() unless it came from a file. Later edit() as often as wanted, applied() when the drive is given
/// the edits.
class EditedSettings
{
public:
    /// What accept() was last given.
    enum class Source {
        BareCatalogue, ///< nobody's settings: zeros that were never read
        File,
        PartOfDrive, ///< a read that failed half way, or a bootloader, which tells its identity only
        Drive,
    };

    /// `catalogue`: the program's own list, which says what can be written.
    explicit EditedSettings(const Parameters &catalogue) : m_catalogue(catalogue) {}

    // --- What comes in ----------------------------------------------------------------------------------------

    /// Takes a list over in place of the edited one. Of a file everything is pending, even where no value differs.
    void accept(const Parameters &list, Source source);
    /// What the connected drive has: last read from it or acknowledged by it.
    void setDrive(const Parameters &list) { m_drive = list; }
    /// Another connection, or none: what the drive before it had says nothing about this one.
    void connectionChanged() { m_driveWasRead = false; }

    /// What the control of a record made of its value.
    void showAs(const QString &name, const ShownValue &shown) { m_shown.insert(name, shown); }
    /// The control of the record at `index` holds this now.
    void edit(int index, double control);
    /// The value of the first record with this name is wanted to be this.
    void edit(const QString &name, double value);

    /// The controls agree with the drive as they stand; or the user lets a difference be.
    void settle();
    /// The drive is given what was edited. It has not stored it yet.
    void applied();
    void setSaved(bool saved) { m_saved = saved; }

    // --- What is known ----------------------------------------------------------------------------------------

    Source source() const { return m_source; }
    /// What the user wants: the list that is shown, edits included.
    const Parameters &edited() const { return m_edited; }
    const Parameters &drive() const { return m_drive; }
    /// Edited value of the first record with this name, 0 when there is none.
    double value(const QString &name) const { return m_edited.getParam(name).value; }
    /// Whether everything of the connected drive was read in this connection. Before that nothing may be sent to it:
    /// the controls hold no value of this drive, and no limits of it either.
    bool driveWasRead() const { return m_driveWasRead; }
    /// Whether there are edits that the drive has not been given. Undoing an edit by hand ends it.
    bool isPending() const;
    /// Whether the drive's flash holds what was last applied.
    bool isSaved() const { return m_saved; }
    /// What an Apply would change in a drive of this model; after a read, what it has not taken. Empty until the drive
    /// was read.
    QList<Difference> differences(const QString &modelName) const;

private:
    Parameters m_catalogue;
    Source m_source = Source::BareCatalogue;
    Parameters m_edited;
    Parameters m_drive;
    QHash<QString, ShownValue> m_shown;
    QHash<QString, double> m_settled; ///< edited values when they last agreed with the drive
    bool m_fileLoaded = false;        ///< and not settled since
    bool m_driveWasRead = false;
    bool m_saved = true;
};

#endif
