// Registers: identity, limits, error bits, commands, flash and restarts.
#include "drivebench.h"

using namespace std::chrono_literals;
using namespace sim;

namespace {

using Registers = DriveBench;

std::int32_t limit(VirtualDrive &drive, int address, int flag)
{
    drive.write(reg::ReturnSelector, address + flag);
    const Bytes reply = drive.answer({InstantCommand, 5, {0x80, 0x00}})->payload;
    const std::int32_t raw = (reply[0] << 24 | reply[1] << 16 | reply[2] << 8 | reply[3]) << 2;
    return raw >> 2;
}

} // namespace

TEST(Profiles, EachHasItsIdentityLimitsAndOwnSettings)
{
    const struct
    {
        const char *profile;
        int type, firmware, peakMaximum, overVoltageMinimum, velocityGain, busVoltage;
        bool hasRippleCompensation, isKeta;
    } models[] = {
        {"keta", 11000, 1078, 35000, 1000, 360, 4800, false, true},
        {"keta-pro", 11001, 1078, 35000, 1000, 360, 4800, true, true},
        {"keta-hc", 11200, 1078, 50000, 1000, 360, 4800, false, true},
        {"torva", 4000, 1090, 20000, 3000, 90, 32000, false, false},
    };
    ASSERT_EQ(std::size(models), driveProfiles().size()) << "a model without a row here";
    for (const auto &model : models) {
        SCOPED_TRACE(model.profile);
        VirtualDrive drive(*findProfile(model.profile));
        const std::pair<int, int> values[] = {{6020, model.type},
                                              {2, 1},
                                              {3, 25},
                                              {4, 25},
                                              {6055, 2500},
                                              {202, model.velocityGain},
                                              {950, model.busVoltage},
                                              {6016, model.isKeta ? 0x1A4C7E2 : 0},
                                              {6003, model.isKeta ? 0x1C35A90B : 0}};
        for (const auto &[address, value] : values)
            EXPECT_EQ(drive.read(address), value) << address;
        for (const int version : {6010, 6011, 6014, 6015})
            EXPECT_EQ(drive.read(version), model.firmware) << version;
        EXPECT_GT(drive.read(6002), 0);
        EXPECT_EQ(limit(drive, reg::PeakCurrent, 0x8000), model.peakMaximum);
        EXPECT_EQ(limit(drive, reg::OverVoltageLimit, 0x4000), model.overVoltageMinimum);
        EXPECT_EQ(limit(drive, reg::ControlRate, 0x4000), 2500);
        for (const int ripple : {424, 425, 426, 427})
            EXPECT_EQ(drive.write(ripple, 1) == Outcome::Done, model.hasRippleCompensation) << ripple;
        for (const int ketaOnly : {573, 14})
            EXPECT_EQ(drive.write(ketaOnly, 1) == Outcome::Done, model.isKeta) << ketaOnly;
    }
}

TEST_F(Registers, RefusedWritesSetTheirErrorBitAndChangeNothing)
{
    const std::tuple<int, std::int32_t, std::int32_t> refusals[] = {
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
    for (const auto &[address, value, error] : refusals) {
        SCOPED_TRACE(address);
        const std::int32_t before = drive.read(address);
        EXPECT_EQ(errorsOfWriting(address, value), error);
        EXPECT_EQ(drive.read(address), before);
    }
    drive.write(reg::PeakCurrent, 40000);
    drive.write(9999, 1);
    EXPECT_EQ(drive.read(reg::ErrorBits), ErrorAboveMaximum | ErrorUnknownRegister) << "bits add up until cleared";
}

TEST_F(Registers, IdleDriveLooksHealthy)
{
    drive.advanceCycles(1);
    const std::pair<int, std::int32_t> healthy[] = {{reg::Status, StatusInitialized | StatusVoltagesGood},
                                                    {reg::Faults, 0},
                                                    {reg::BusVoltage, 4800},
                                                    {reg::CurrentLimit, 32000},
                                                    {reg::LimitReason, 0},
                                                    {reg::SoftEnable, 0},
                                                    {9999, 0}, // unknown, and no error to read
                                                    {reg::ErrorBits, 0}};
    for (const auto &[address, value] : healthy)
        EXPECT_EQ(drive.read(address), value) << address;
    EXPECT_EQ(drive.read(reg::ControlInputs) & 7, 7) << "enable and both feed inputs closed";
    drive.advanceCycles(999);
    EXPECT_EQ(drive.answer({GetClock, 5, {}})->payload, (Bytes{0xA0, 0x0F})) << "400 ms in tenths";
    EXPECT_FALSE(drive.answer({GetClock, 6, {}})) << "another address";
    EXPECT_FALSE(drive.answer({56, 5, {}})) << "unknown command";
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

TEST_F(Registers, RestartTakesWhatWasSaved)
{
    drive.writeAll({{reg::VelocityP, 400}, {reg::AddressOffset, 3}, {reg::Command, 1}, {reg::VelocityP, 500}});
    drive.set(reg::Faults, FaultFeedback);
    EXPECT_EQ(drive.address(), 5) << "saved, but not restarted";
    drive.write(reg::Command, 2);
    EXPECT_EQ(drive.read(reg::VelocityP), 400);
    EXPECT_EQ(drive.read(reg::Faults), 0);
    EXPECT_EQ(drive.address(), 8);
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

TEST_F(Registers, MeasuringGivesTheMotorsValuesUnlessEnabled)
{
    drive.write(reg::MotorResistance, 77);
    for (const auto &[enabled, result, resistance] : {std::tuple(1, 801, 77), std::tuple(0, 800, 150)}) {
        drive.write(reg::SoftEnable, enabled);
        drive.write(reg::Command, 256);
        EXPECT_EQ(drive.read(reg::MeasureResult), result);
        EXPECT_EQ(drive.read(reg::MotorResistance), resistance);
    }
    EXPECT_EQ(drive.read(reg::MotorInductance), 500);
}

TEST_F(Registers, MotorSettingsChangedWhileRunningStopUntilRestart)
{
    for (const int address : {reg::FeedbackDevice, reg::MotorType, reg::PolePairs, reg::VelocityFeedbackDevice}) {
        SCOPED_TRACE(address);
        const auto hasStopped = [this] { return (drive.read(reg::Status) & StatusPermanentStop) != 0; };
        startAfresh();
        drive.write(address, 2);
        EXPECT_FALSE(hasStopped()) << "not while it rests";
        startAfresh();
        drive.write(reg::SoftEnable, 1);
        drive.write(address, drive.read(address));
        EXPECT_FALSE(hasStopped()) << "the same value is no change";
        drive.write(address, 2);
        EXPECT_TRUE(hasStopped());
        EXPECT_FALSE(drive.read(reg::Status) & StatusRun);
        drive.write(reg::Command, 2);
        EXPECT_FALSE(hasStopped());
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
