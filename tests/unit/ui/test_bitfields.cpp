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

TEST(BitFields, EveryControlReadsItsBits)
{
    const struct
    {
        const char *parameter, *control;
        std::vector<int> bits; ///< of each choice but "off"
        int none;              ///< bits that choose nothing
    } rows[] = {{"FLAGS", "CEN", {0x0001}, 0xFFFE},          {"FLAGS", "CED", {0x0004}, 0xFFFB},
                {"FLAGS", "FBI", {0x0008}, 0xFFF7},          {"FLAGS", "AXI", {0x0010}, 0xFFEF},
                {"FLAGS", "CEP", {0x0020}, 0xFFDF},          {"FLAGS", "CIS", {0x0800}, 0xF7FF},
                {"FLAGS", "BAP", {0x8000}, 0x7FFF},          {"HOMING", "HFO", {0x40}, 0xBF},
                {"FLAGS", "FBH", {0x4000, 0x6000}, 0x2000}, // inversion alone switches nothing on
                {"HOMING", "HME", {128, 160}, 32},           {"HOMING", "HMS", {8, 12}, 4},
                {"HOMING", "HMI", {16, 18}, 2}};
    for (const auto &row : rows) {
        EXPECT_EQ(choice(row.parameter, row.control, row.none), 0) << row.control;
        for (std::size_t i = 0; i < row.bits.size(); ++i)
            EXPECT_EQ(choice(row.parameter, row.control, row.bits[i]), int(i) + 1) << row.control;
    }
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
