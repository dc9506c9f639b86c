// Registers: identity, limits, error bits, commands, flash and restarts.
#include "drivebench.h"

using namespace std::chrono_literals;
using namespace sim;

namespace {

class Registers : public DriveBench
{
};

class TorvaRegisters : public DriveBench
{
protected:
    TorvaRegisters() : DriveBench("torva") {}
};

std::int32_t limit(VirtualDrive &drive, int address, int flag)
{
    drive.write(reg::ReturnSelector, address + flag);
    const Bytes reply = drive.answer({InstantCommand, 5, {0x80, 0x00}})->payload;
    const std::int32_t raw = (reply[0] << 24 | reply[1] << 16 | reply[2] << 8 | reply[3]) << 2;
    return raw >> 2;
}

} // namespace

TEST(Profiles, EachShowsItsIdentity)
{
    const struct
    {
        const char *profile;
        int type, firmware;
    } expected[] = {{"keta", 11000, 1078}, {"keta-pro", 11001, 1078}, {"keta-hc", 11200, 1078}, {"torva", 4000, 1090}};
    for (const auto &model : expected) {
        SCOPED_TRACE(model.profile);
        VirtualDrive drive(*findProfile(model.profile));
        EXPECT_EQ(drive.read(6020), model.type);
        for (const int version : {6010, 6011, 6014, 6015})
            EXPECT_EQ(drive.read(version), model.firmware);
        EXPECT_EQ(drive.read(2), 1);
        EXPECT_EQ(drive.read(3), 25);
        EXPECT_EQ(drive.read(4), 25);
        EXPECT_EQ(drive.read(6055), 2500);
        EXPECT_GT(drive.read(6002), 0);
    }
}

TEST(Profiles, LackWhatTheModelLacks)
{
    VirtualDrive keta(*findProfile("keta")), pro(*findProfile("keta-pro")), torva(*findProfile("torva"));
    for (const int ripple : {424, 425, 426, 427}) {
        EXPECT_EQ(keta.write(ripple, 1), Outcome::Refused);
        EXPECT_EQ(pro.write(ripple, 1), Outcome::Done);
        EXPECT_EQ(torva.write(ripple, 1), Outcome::Refused);
    }
    for (const int ketaOnly : {573, 14})
        EXPECT_EQ(torva.write(ketaOnly, 1), Outcome::Refused);
    EXPECT_EQ(keta.read(6016), 0x1A4C7E2);
    EXPECT_EQ(keta.read(6003), 0x1C35A90B);
    EXPECT_EQ(torva.read(6016), 0);
}

TEST(Profiles, HaveTheirOwnLimits)
{
    VirtualDrive keta(*findProfile("keta")), highCurrent(*findProfile("keta-hc")), torva(*findProfile("torva"));
    EXPECT_EQ(limit(keta, reg::PeakCurrent, 0x8000), 35000);
    EXPECT_EQ(limit(highCurrent, reg::PeakCurrent, 0x8000), 50000);
    EXPECT_EQ(limit(torva, reg::PeakCurrent, 0x8000), 20000);
    EXPECT_EQ(limit(torva, reg::OverVoltageLimit, 0x4000), 3000);
    EXPECT_EQ(limit(keta, reg::ControlRate, 0x4000), 2500);
    EXPECT_EQ(torva.read(reg::VelocityP), 90);
    EXPECT_EQ(torva.read(reg::BusVoltage), 32000);
}

TEST_F(Registers, RefusedWritesSetTheirErrorBitAndChangeNothing)
{
    const struct
    {
        int address;
        std::int32_t value, error;
    } refusals[] = {
        {6020, 1, ErrorReadOnly},
        {reg::BusVoltage, 1, ErrorReadOnly},
        {reg::NormalMode, 0, ErrorReadOnly},
        {9999, 1, ErrorUnknownRegister},
        {0, 1, ErrorUnknownRegister},
        {reg::UpgradeCommand, 1, ErrorUnknownRegister},
        {reg::SoftEnable, 2, ErrorValueNotAllowed},
        {reg::ForceEnable, 1, ErrorValueNotAllowed},
        {reg::Command, 3, ErrorValueNotAllowed},
        {reg::Faults, 1, ErrorValueNotAllowed},
        {reg::PeakCurrent, 35001, ErrorAboveMaximum},
        {reg::PeakCurrent, -1, ErrorBelowMinimum},
        {reg::ReturnControl, 4, ErrorAboveMaximum},
    };
    for (const auto &refusal : refusals) {
        SCOPED_TRACE(refusal.address);
        const std::int32_t before = drive.read(refusal.address);
        EXPECT_EQ(errorsOfWriting(refusal.address, refusal.value), refusal.error);
        EXPECT_EQ(drive.read(refusal.address), before);
    }
    drive.write(reg::PeakCurrent, 40000);
    drive.write(9999, 1);
    EXPECT_EQ(drive.read(reg::ErrorBits), ErrorAboveMaximum | ErrorUnknownRegister) << "bits add up until cleared";
}

TEST_F(Registers, ReadingAnUnknownRegisterIsZeroAndNoError)
{
    EXPECT_EQ(drive.read(9999), 0);
    EXPECT_EQ(drive.read(reg::ErrorBits), 0);
}

TEST_F(Registers, IdleDriveLooksHealthy)
{
    drive.advanceCycles(1);
    EXPECT_EQ(drive.read(reg::Status), StatusInitialized | StatusVoltagesGood);
    EXPECT_EQ(drive.read(reg::Faults), 0);
    EXPECT_EQ(drive.read(reg::BusVoltage), 4800);
    EXPECT_EQ(drive.read(reg::CurrentLimit), 32000);
    EXPECT_EQ(drive.read(reg::LimitReason), 0);
    EXPECT_EQ(drive.read(reg::ControlInputs) & 7, 7) << "enable and both feed inputs closed";
    EXPECT_EQ(drive.read(reg::SoftEnable), 0);
}

TEST_F(Registers, ValuesCanBeSetFromOutside)
{
    EXPECT_TRUE(drive.set(reg::Firmware, 1077));
    EXPECT_EQ(drive.read(reg::Firmware), 1077) << "identity, although read-only";
    EXPECT_TRUE(drive.set(reg::Temperature, 71));
    EXPECT_EQ(drive.read(reg::Temperature), 71);
    EXPECT_TRUE(drive.set(reg::Status, 0));
    drive.advanceCycles(1);
    EXPECT_EQ(drive.read(reg::Status), 0) << "held against what the drive would show";
    drive.release(reg::Status);
    EXPECT_NE(drive.read(reg::Status), 0);
    EXPECT_FALSE(drive.set(9999, 1));
}

TEST_F(Registers, SettingsComeBackFromFlashAfterARestart)
{
    drive.write(reg::VelocityP, 400);
    drive.write(reg::Command, 1);
    drive.write(reg::VelocityP, 500);
    drive.set(reg::Faults, FaultFeedback);
    drive.write(reg::Command, 2);
    EXPECT_EQ(drive.read(reg::VelocityP), 400);
    EXPECT_EQ(drive.read(reg::Faults), 0);
}

TEST_F(Registers, RestartIsAnsweredFirstThenSilent)
{
    const Bytes restart{0x82, 0x2A, 0x00, 0x00, 0x00, 0x02}; // 554 := 2
    EXPECT_EQ(ask(restart).size(), 8u);
    EXPECT_EQ(ask({0x80, 0x00}).size(), 0u);
    drive.advance(900ms);
    drive.advance(590ms);
    EXPECT_EQ(ask({0x80, 0x00}).size(), 0u) << "still silent after 1.49 s";
    drive.advance(11ms);
    EXPECT_EQ(ask({0x80, 0x00}).size(), 4u);
}

TEST_F(Registers, AddressOffsetCountsFromTheNextRestart)
{
    drive.write(reg::AddressOffset, 3);
    drive.write(reg::Command, 1);
    EXPECT_EQ(drive.address(), 5) << "saved, but not restarted";
    drive.write(reg::Command, 2);
    EXPECT_EQ(drive.address(), 8);
}

TEST_F(Registers, OtherAddressesAndUnknownCommandsAreNotAnswered)
{
    EXPECT_FALSE(drive.answer({InstantCommand, 6, {0x80, 0x00}}));
    EXPECT_FALSE(drive.answer({56, 5, {}}));
    EXPECT_TRUE(drive.answer({GetClock, 5, {}}));
}

TEST_F(Registers, ClockCountsTenthsOfMilliseconds)
{
    drive.advanceCycles(1000); // 400 ms
    EXPECT_EQ(drive.answer({GetClock, 5, {}})->payload, (Bytes{0xA0, 0x0F}));
}

TEST_F(Registers, MeasuringGivesTheMotorsValuesUnlessEnabled)
{
    drive.write(reg::MotorResistance, 77);
    drive.write(reg::SoftEnable, 1);
    drive.write(reg::Command, 256);
    EXPECT_EQ(drive.read(reg::MeasureResult), 801);
    EXPECT_EQ(drive.read(reg::MotorResistance), 77);
    drive.write(reg::SoftEnable, 0);
    drive.write(reg::Command, 256);
    EXPECT_EQ(drive.read(reg::MeasureResult), 800);
    EXPECT_EQ(drive.read(reg::MotorResistance), 150);
    EXPECT_EQ(drive.read(reg::MotorInductance), 500);
}

TEST_F(Registers, MotorSettingsChangedWhileRunningStopUntilRestart)
{
    for (const int address : {reg::FeedbackDevice, reg::MotorType, reg::PolePairs, reg::VelocityFeedbackDevice}) {
        SCOPED_TRACE(address);
        VirtualDrive other(*findProfile("keta"));
        other.write(address, 2);
        EXPECT_FALSE(other.read(reg::Status) & StatusPermanentStop) << "not while it rests";
        other.powerUp(other.flash());
        other.write(reg::SoftEnable, 1);
        other.write(address, other.read(address));
        EXPECT_FALSE(other.read(reg::Status) & StatusPermanentStop) << "the same value is no change";
        other.write(address, 2);
        EXPECT_TRUE(other.read(reg::Status) & StatusPermanentStop);
        EXPECT_FALSE(other.read(reg::Status) & StatusRun);
        other.write(reg::Command, 2);
        EXPECT_FALSE(other.read(reg::Status) & StatusPermanentStop);
    }
}

TEST_F(Registers, WritesCanBeRefusedOnPurpose)
{
    drive.refuseWrites(reg::VelocityP, std::nullopt, 1);
    EXPECT_EQ(errorsOfWriting(reg::VelocityP, 10), 0);
    EXPECT_EQ(errorsOfWriting(reg::VelocityP, 11), ErrorValueNotAllowed);
    EXPECT_EQ(drive.read(reg::VelocityP), 10);
    drive.acceptWrites();
    EXPECT_EQ(errorsOfWriting(reg::VelocityP, 11), 0);
}
