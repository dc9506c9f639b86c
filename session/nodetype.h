/// \file
/// What a bus scan finds.
#ifndef VELBRIN_SESSION_NODETYPE_H
#define VELBRIN_SESSION_NODETYPE_H

#include <QList>
#include <QMetaType>

/// One drive found by a bus scan.
struct NodeType
{
    int address = 0;                  ///< bus address that answered
    bool firmwareUpgradeMode = false; ///< address 251 or above, or register 2 read 0
    int deviceType = 0;               ///< type id, register 6020
    bool unreadable = false;          ///< answers, but never well: who is there, and in which mode, is not known
};
Q_DECLARE_METATYPE(QList<NodeType>)

#endif
