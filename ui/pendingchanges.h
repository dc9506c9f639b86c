/// \file
/// Whether the controls hold values that the drive has not been given.
#ifndef PENDINGCHANGES_H
#define PENDINGCHANGES_H

#include "parameters.h"

#include <QHash>

/// Remembers what the controls held when they last agreed with the drive (or when the user chose to let a difference
/// be). Undoing an edit by hand therefore ends the pending state, and the rounding of a control never begins it, as
/// the remembered values are those read back from the controls.
class PendingChanges
{
public:
    /// The controls agree with the drive as they stand.
    void settle(const Parameters &controls);
    /// A settings file filled the controls: pending until settled, even where no value differs.
    void fileLoaded() { m_fileLoaded = true; }
    bool isPending(const Parameters &controls) const;

private:
    QHash<QString, double> m_baseline;
    bool m_fileLoaded = false;
};

#endif
