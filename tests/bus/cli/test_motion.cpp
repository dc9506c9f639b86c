// Commands that move a drive or stop it: what they send, what they wait for, and how they leave the drive.
#include "cliprocess.h"

#include <QJsonArray>
#include <QJsonObject>

using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

// Registers.
constexpr int ProtocolVersion = 3;
constexpr int ProtocolCompanion = 4;
constexpr int ControlInputs = 963;
constexpr int Temperature = 952;
constexpr int HomingSettings = 806;
constexpr int HomingVelocity = 804;

constexpr int Homing = 2048;
constexpr int OverTemperature = 32;
constexpr int AllButPhysicalEnable = 6;

class CliMotion : public CliFixture
{
protected:
    bool isRunning() { return bus().read(DriveAddress, Status) & Running; }
    void enableByHand()
    {
        bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) { drive.write(SoftEnable, 1); });
        ASSERT_TRUE(bus().waitForRegister(DriveAddress, Status, [](std::int32_t bits) { return bits & Running; }));
    }
};

} // namespace

TEST_F(CliMotion, EnablePowersTheMotorAndLeavesItSo)
{
    Ran ran = good(onDrive({"enable"}), "running\t0\t0\n");
    EXPECT_EQ(ran.err, "");
    EXPECT_TRUE(isRunning());
    EXPECT_THAT(sent(), Contains(EnablePayload));
    EXPECT_THAT(sent(), Not(Contains(DisablePayload)));

    bus().clearReceived();
    ran = onDrive({"--json", "enable"});
    EXPECT_EQ(ran.json().object()["state"], "running");
    EXPECT_THAT(sent(), Not(Contains(EnablePayload))) << "it was enabled already";
}

TEST_F(CliMotion, EnableThatDoesNotWorkIsTakenBackAndSaysWhy)
{
    bus().set(DriveAddress, Faults, TrackingFault);
    failed(onDrive({"enable"}),
           "The drive did not enable.\n"
           "Reason for inactivity: Fault stopped (on), Tracking error (on).\n",
           "");
    EXPECT_EQ(bus().read(DriveAddress, SoftEnable), 0);

    bus().set(DriveAddress, Faults, 0);
    bus().set(DriveAddress, ControlInputs, AllButPhysicalEnable);
    failed(onDrive({"enable"}), HasSubstr("Phys enable (off)"));
    EXPECT_EQ(bus().read(DriveAddress, SoftEnable), 0) << "it would start when the input closes";
}

TEST_F(CliMotion, EnableThatIsInterruptedDisables)
{
    for (const int signal : {SIGINT, SIGTERM}) {
        bus().set(DriveAddress, ControlInputs, AllButPhysicalEnable);
        bus().clearReceived();
        QProcess process;
        start(process, {"--port", port(), "--node", "5", "enable"});
        ASSERT_TRUE(waitForPayload(bus(), EnablePayload));
        sendSignal(process, signal);
        failed(finish(process), HasSubstr("Interrupted."));
        EXPECT_THAT(sent(), Contains(DisablePayload));
        EXPECT_EQ(bus().read(DriveAddress, SoftEnable), 0);
    }
}

TEST_F(CliMotion, DisableStopsTheMotorEvenOfADriveThatCannotBeIdentified)
{
    enableByHand();
    EXPECT_THAT(onDrive({"disable"}).out.toStdString(), StartsWith("disabled\t"));
    EXPECT_FALSE(isRunning());
    enableByHand();
    bus().set(DriveAddress, ProtocolVersion, 1000); // not one that this program speaks
    bus().set(DriveAddress, ProtocolCompanion, 1000);
    bus().clearReceived();
    const Ran ran = good(onDrive({"disable"}), "disabled\n");
    EXPECT_EQ(ran.err, "");
    EXPECT_THAT(sent().front(), StartsWith(DisablePayload));
    EXPECT_FALSE(isRunning());
}

TEST_F(CliMotion, EnableThatCannotBeConfirmedIsUndone)
{
    ASSERT_EQ(onDrive({"enable"}).status, 0);
    const std::vector<std::string> all = sent();
    const int before = int(std::find(all.begin(), all.end(), EnablePayload) - all.begin());
    ASSERT_EQ(onDrive({"disable"}).status, 0);
    const std::pair<sim::LineFault::Kind, int> rows[] = {
        {sim::LineFault::Missing, before},
        {sim::LineFault::Missing, before + 1}, // now and then a poll more comes before the enable
    };
    int undone = 0;
    for (const auto &[kind, skip] : rows) {
        bus().setFault({kind, 1200, skip, 1}); // ms, where it matters: a reply may take a second
        const Ran ran = onDrive({"enable"});
        bus().clearFaults();
        EXPECT_EQ(ran.status == 0, isRunning()) << ran.err.toStdString();
        EXPECT_EQ(ran.status == 0, bus().read(DriveAddress, SoftEnable) == 1);
        EXPECT_EQ(ran.status == 0, !ran.err.contains("did not confirm that it was enabled"));
        undone += ran.status != 0;
        bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) { drive.write(SoftEnable, 0); });
        ASSERT_TRUE(bus().waitForRegister(DriveAddress, Status, [](std::int32_t bits) { return !(bits & Running); }));
    }
    EXPECT_GE(undone, 1);
}

TEST_F(CliMotion, DisableThatIsNotConfirmedIsNoSuccess)
{
    enableByHand();
    bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) { drive.refuseWrites(SoftEnable); });
    Ran ran = failed(onDrive({"disable"}),
                     HasSubstr("The drive shows that it is still enabled. It may still be running"), "");

    // A drive that its enable input alone enables.
    bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) {
        constexpr int Flags = 567;
        drive.acceptWrites();
        drive.set(Flags, drive.read(Flags) & ~1);
    });
    failed(onDrive({"disable"}), HasSubstr("stays enabled: by its settings, its enable input alone decides."));
}

TEST_F(CliMotion, SetpointIsSentAndSeen)
{
    enableByHand();
    EXPECT_THAT(onDrive({"setpoint", "100"}).out.toStdString(), StartsWith("running\t100\t"));
    EXPECT_THAT(onDrive({"setpoint", "-30", "--incremental"}).out.toStdString(), StartsWith("running\t70\t"));
    EXPECT_THAT(onDrive({"setpoint", "-30"}).out.toStdString(), StartsWith("running\t-30\t"));
}

TEST_F(CliMotion, SetpointThatTheDriveCannotTakeOrFollowIsSaidSo)
{
    Ran ran = good(onDrive({"setpoint", "536870911"}), "disabled\t536870911\t0\n");
    EXPECT_EQ(ran.err, "The drive is not running; the axis goes there when it does.\n");

    bus().clearReceived();
    failed(onDrive({"setpoint", "1", "--incremental"}), HasSubstr("would be 536870912, beyond the 30 bits"));
    EXPECT_THAT(sent(), Not(Contains("822600000001")));

    bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) { drive.refuseWrites(551); });
    failed(onDrive({"setpoint", "5"}), HasSubstr("did not take it: its setpoint in use is 536870911."));
}

TEST_F(CliMotion, ClearFaultsTellsWhichOnesStay)
{
    bus().set(DriveAddress, Faults, TrackingFault);
    good(onDrive({"clear-faults"}));
    EXPECT_EQ(bus().read(DriveAddress, Faults), 0);

    bus().set(DriveAddress, Temperature, 120);
    ASSERT_TRUE(bus().waitForRegister(DriveAddress, Faults, OverTemperature));
    failed(onDrive({"clear-faults"}), "Still active: Over temperature.\n");
}

TEST_F(CliMotion, HomingRunsToItsEnd)
{
    bus().set(DriveAddress, HomingSettings, 0x80); // to the stop pin
    bus().set(DriveAddress, HomingVelocity, 4000);
    failed(onDrive({"home"}), HasSubstr("not enabled, so it was not asked to home.\nReason for inactivity: "));
    EXPECT_EQ(bus().read(DriveAddress, Status) & Homing, 0);

    enableByHand();
    good(onDrive({"home"}), StartsWith("running\t0\t"));
    EXPECT_THAT(sent(), Contains("9d6c00000001"));
    EXPECT_THAT(sent(), Not(Contains("9d6c00000000")));

    bus().set(DriveAddress, HomingSettings, 0);
    failed(onDrive({"home"}), HasSubstr("The drive did not start homing."));
}

TEST_F(CliMotion, HomingThatTakesTooLongOrIsInterruptedIsAborted)
{
    bus().set(DriveAddress, HomingSettings, 0x80);
    bus().set(DriveAddress, HomingVelocity, 50);
    enableByHand();
    failed(onDrive({"home", "--time-out", "0.1"}), "Homing was aborted before it was done.\n");
    EXPECT_EQ(bus().read(DriveAddress, Status) & Homing, 0);
    EXPECT_TRUE(isRunning()) << "the command had not enabled it";

    bus().clearReceived();
    QProcess process;
    start(process, {"--port", port(), "--node", "5", "home"});
    ASSERT_TRUE(waitForPayload(bus(), "9d6c00000001"));
    sendSignal(process);
    EXPECT_EQ(finish(process).status, 1);
    EXPECT_THAT(sent(), Contains("9d6c00000000"));
    EXPECT_EQ(bus().read(DriveAddress, Status) & Homing, 0);

    bus().clearReceived();
    bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) { drive.refuseWrites(7532, 0); });
    // Time to interrupt it before a poll shows that it homes: what was polled before the abort must not count.
    bus().setTurnAround(std::chrono::milliseconds(50));
    start(process, {"--port", port(), "--node", "5", "home"});
    ASSERT_TRUE(waitForPayload(bus(), "9d6c00000001"));
    sendSignal(process);
    EXPECT_THAT(finish(process).err.toStdString(), HasSubstr("has not confirmed that homing is aborted"));
}
