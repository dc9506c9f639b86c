#include "bitfields.h"

namespace {

// 0x2000 alone means nothing: it turns the Hall sensors over that 0x4000 switches on. HOMING's second bits are likewise
// read only together with the first ones.
const QVector<BitFieldControl> flagsControls = {
    {"CEN", 2, {0, 0x0001}}, {"CED", 2, {0, 0x0004}}, {"FBI", 2, {0, 0x0008}},         {"AXI", 2, {0, 0x0010}},
    {"CEP", 2, {0, 0x0020}}, {"CIS", 2, {0, 0x0800}}, {"FBH", 3, {0, 0x4000, 0x6000}}, {"BAP", 2, {0, 0x8000}},
};
const QVector<BitFieldControl> homingControls = {
    {"HME", 3, {0, 0x80, 0xA0}},
    {"HMS", 3, {0, 0x08, 0x0C}},
    {"HMI", 3, {0, 0x10, 0x12}},
    {"HFO", 2, {0, 0x40}},
};
const QVector<BitFieldControl> noControls;

} // namespace

const QVector<BitFieldControl> &bitFieldControls(const QString &mnemonic)
{
    if (mnemonic == QLatin1String("FLAGS"))
        return flagsControls;
    if (mnemonic == QLatin1String("HOMING"))
        return homingControls;
    return noControls;
}

int choiceOfBits(const BitFieldControl &control, int registerValue)
{
    for (int choice = control.choices - 1; choice > 0; --choice)
        if ((registerValue & control.bits[choice]) == control.bits[choice])
            return choice;
    return 0;
}

int bitsOfChoice(const BitFieldControl &control, int choice)
{
    return choice > 0 && choice < control.choices ? control.bits[choice] : 0;
}
