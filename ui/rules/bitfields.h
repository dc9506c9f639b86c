/// \file
/// The two registers that hold several controls each: FLAGS and HOMING.
#ifndef VELBRIN_UI_BITFIELDS_H
#define VELBRIN_UI_BITFIELDS_H

#include <QString>
#include <QVector>

/// One control of a bit field: the bits that each of its choices stands for. A check box has the two choices off and
/// on. Of two choices whose bits are all set, the later one counts.
struct BitFieldControl
{
    const char *name; ///< object name of the check box or combo box
    int choices;      ///< how many of `bits` count
    int bits[3];      ///< bits of choice 0, 1, 2
};

/// Controls of the bit field parameter with this mnemonic; empty for every other parameter.
const QVector<BitFieldControl> &bitFieldControls(const QString &mnemonic);

/// Which choice a register value stands for.
int choiceOfBits(const BitFieldControl &control, int registerValue);
/// The bits of a choice; 0 for a choice that does not exist (a combo box without a current item has index -1).
int bitsOfChoice(const BitFieldControl &control, int choice);

#endif
