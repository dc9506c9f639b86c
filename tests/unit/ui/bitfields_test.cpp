#include "bitfields.h"

#include <gtest/gtest.h>

namespace {

int choice(const char *parameter, const char *control, int registerValue)
{
    for (const BitFieldControl &field : bitFieldControls(QString::fromLatin1(parameter)))
        if (qstrcmp(field.name, control) == 0)
            return choiceOfBits(field, registerValue);
    ADD_FAILURE() << control << " is not part of " << parameter;
    return -1;
}

} // namespace

TEST(BitFields, CheckBoxesHaveOneBitEach)
{
    const struct
    {
        const char *control;
        int bit;
    } boxes[] = {{"CEN", 0x0001}, {"CED", 0x0004}, {"FBI", 0x0008}, {"AXI", 0x0010},
                 {"CEP", 0x0020}, {"CIS", 0x0800}, {"BAP", 0x8000}};
    for (const auto &box : boxes) {
        EXPECT_EQ(choice("FLAGS", box.control, box.bit), 1) << box.control;
        EXPECT_EQ(choice("FLAGS", box.control, 0xFFFF & ~box.bit), 0) << box.control;
    }
    EXPECT_EQ(choice("HOMING", "HFO", 0x40), 1);
    EXPECT_EQ(choice("HOMING", "HFO", 0xBF), 0);
}

TEST(BitFields, HallSensorsNeedTheirFirstBit)
{
    EXPECT_EQ(choice("FLAGS", "FBH", 0x4000), 1);
    EXPECT_EQ(choice("FLAGS", "FBH", 0x6000), 2);
    EXPECT_EQ(choice("FLAGS", "FBH", 0x2000), 0); // inversion alone switches nothing on
}

TEST(BitFields, HomingChoices)
{
    EXPECT_EQ(choice("HOMING", "HME", 160), 2);
    EXPECT_EQ(choice("HOMING", "HME", 128), 1);
    EXPECT_EQ(choice("HOMING", "HME", 32), 0);
    EXPECT_EQ(choice("HOMING", "HMS", 12), 2);
    EXPECT_EQ(choice("HOMING", "HMS", 8), 1);
    EXPECT_EQ(choice("HOMING", "HMS", 4), 0);
    EXPECT_EQ(choice("HOMING", "HMI", 18), 2);
    EXPECT_EQ(choice("HOMING", "HMI", 16), 1);
    EXPECT_EQ(choice("HOMING", "HMI", 2), 0);
}

TEST(BitFields, EveryChoiceComesBackFromItsBitsWhateverElseIsSet)
{
    for (const char *parameter : {"FLAGS", "HOMING"}) {
        int all = 0;
        for (const BitFieldControl &field : bitFieldControls(QString::fromLatin1(parameter))) {
            EXPECT_EQ(all & bitsOfChoice(field, field.choices - 1), 0) << field.name << " shares bits with another";
            all |= bitsOfChoice(field, field.choices - 1);
        }
        for (const BitFieldControl &field : bitFieldControls(QString::fromLatin1(parameter))) {
            const int others = all & ~bitsOfChoice(field, field.choices - 1);
            for (int i = 0; i < field.choices; ++i)
                EXPECT_EQ(choiceOfBits(field, others | bitsOfChoice(field, i)), i) << field.name;
        }
    }
}

TEST(BitFields, MissingChoiceSetsNoBits)
{
    const BitFieldControl hall{"FBH", 3, {0, 0x4000, 0x6000}};
    EXPECT_EQ(bitsOfChoice(hall, -1), 0);
    EXPECT_EQ(bitsOfChoice(hall, 3), 0);
    EXPECT_TRUE(bitFieldControls(QStringLiteral("KVP")).isEmpty());
}
