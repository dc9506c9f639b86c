/// \file
/// What an Apply is about to change, and what is worth a word before it does.
#ifndef VELBRIN_UI_SETTINGCHANGES_H
#define VELBRIN_UI_SETTINGCHANGES_H

#include <QList>
#include <QString>
#include <QStringList>

/// One row of the list before an Apply: texts with units, as the controls write them.
struct SettingChange
{
    QString name;    ///< mnemonic of the control
    QString caption; ///< "[KVP] Velocity P gain"
    QString before;  ///< the drive's value
    QString after;
    double beforeNumber = 0.0;
    double afterNumber = 0.0;
};

/// So many changes need no list: the strip tells how many there are, and the fields are marked.
constexpr int mostChangesWithoutList = 3;

/// A sentence for each current or voltage limit that grows more than threefold, plain text.
QStringList growthWarnings(const QList<SettingChange> &changes);

/// Whether the user is to see the list first. `warnings` is HTML, empty when nothing warns.
inline bool needsLook(const QList<SettingChange> &changes, const QString &warnings)
{
    return !warnings.isEmpty() || changes.size() > mostChangesWithoutList || !growthWarnings(changes).isEmpty();
}

#endif
