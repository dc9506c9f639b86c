// Commands that move a drive or stop it: what they send, what they wait for, and how they leave the drive.
#include "cliprocess.h"

#include <QJsonArray>
#include <QJsonObject>

using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

// Registers, and bits of the status, the fault register and the control inputs.
constexpr int protocolVersion = 3, protocolCompanion = 4, controlInputs = 963, temperature = 952;
constexpr int homingSettings = 806, homingVelocity = 804;
constexpr int homing = 2048, overTemperature = 32, allButPhysicalEnable = 6;

using CliMotion = CliFixture;

} // namespace

TEST_F(CliMotion, EnablePowersTheMotorAndLeavesItSo)
{
    good(onDrive({"enable"}), "running\t0\t0\n", "");
    EXPECT_TRUE(isRunning());
    EXPECT_THAT(sent(), Contains(enablePayload));
    EXPECT_THAT(sent(), Not(Contains(disablePayload)));

    bus().clearReceived();
    EXPECT_EQ(onDrive({"--json", "enable"}).json().object()["state"], "running");
    EXPECT_THAT(sent(), Not(Contains(enablePayload))) << "it was enabled already";
}

TEST_F(CliMotion, EnableThatDoesNotWorkIsTakenBackAndSaysWhy)
{
    bus().set(DriveAddress, faultRegister, trackingFault);
    failed(onDrive({"enable"}),
           "The drive did not enable.\n"
           "Reason for inactivity: Fault stopped (on), Tracking error (on).\n",
           "");
    EXPECT_EQ(bus().read(DriveAddress, softEnable), 0);

    bus().set(DriveAddress, faultRegister, 0);
    bus().set(DriveAddress, controlInputs, allButPhysicalEnable);
    failed(onDrive({"enable"}), HasSubstr("Phys enable (off)"));
    EXPECT_EQ(bus().read(DriveAddress, softEnable), 0) << "it would start when the input closes";
}

TEST_F(CliMotion, EnableThatIsInterruptedDisables)
{
    for (const int signal : {SIGINT, SIGTERM}) {
        bus().set(DriveAddress, controlInputs, allButPhysicalEnable);
        bus().clearReceived();
        RunningOnDrive process({"enable"});
        ASSERT_TRUE(waitForPayload(enablePayload));
        sendSignal(process, signal);
        failed(finish(process), HasSubstr("Interrupted."));
        EXPECT_THAT(sent(), Contains(disablePayload));
        EXPECT_EQ(bus().read(DriveAddress, softEnable), 0);
    }
}

TEST_F(CliMotion, DisableStopsTheMotorEvenOfADriveThatCannotBeIdentified)
{
    ASSERT_TRUE(enableByHand());
    EXPECT_THAT(onDrive({"disable"}).out.toStdString(), StartsWith("disabled\t"));
    EXPECT_FALSE(isRunning());
    ASSERT_TRUE(enableByHand());
    bus().set(DriveAddress, protocolVersion, 1000); // not one that this program speaks
    bus().set(DriveAddress, protocolCompanion, 1000);
    bus().clearReceived();
    good(onDrive({"disable"}), "disabled\n", "");
    EXPECT_THAT(sent().front(), StartsWith(disablePayload));
    EXPECT_FALSE(isRunning());
}

TEST_F(CliMotion, EnableThatCannotBeConfirmedIsUndone)
{
    good(onDrive({"enable"}));
    const std::vector<std::string> all = sent();
    const int before = int(std::find(all.begin(), all.end(), enablePayload) - all.begin());
    good(onDrive({"disable"}));
    int undone = 0;
    for (const int skip : {before, before + 1}) { // now and then a poll more comes before the enable
        bus().setFault({sim::LineFault::Missing, 0, skip, 1});
        const Ran ran = onDrive({"enable"});
        bus().clearFaults();
        EXPECT_EQ(ran.status == 0, isRunning()) << ran.err.toStdString();
        EXPECT_EQ(ran.status == 0, bus().read(DriveAddress, softEnable) == 1);
        EXPECT_EQ(ran.status == 0, !ran.err.contains("did not confirm that it was enabled"));
        undone += ran.status != 0;
        write(softEnable, 0);
        ASSERT_TRUE(waitUntilRunning(false));
    }
    EXPECT_GE(undone, 1);
}

TEST_F(CliMotion, DisableThatIsNotConfirmedIsNoSuccess)
{
    ASSERT_TRUE(enableByHand());
    refuseWrites(softEnable);
    failed(onDrive({"disable"}), HasSubstr("The drive shows that it is still enabled. It may still be running"), "");
    // A drive that its enable input alone enables.
    bus().withDrive(DriveAddress, [](sim::VirtualDrive &drive) {
        constexpr int flags = 567;
        drive.acceptWrites();
        drive.set(flags, drive.read(flags) & ~1);
    });
    failed(onDrive({"disable"}), HasSubstr("stays enabled: by its settings, its enable input alone decides."));
}

TEST_F(CliMotion, SetpointIsSentAndSeen)
{
    ASSERT_TRUE(enableByHand());
    EXPECT_THAT(onDrive({"setpoint", "100"}).out.toStdString(), StartsWith("running\t100\t"));
    EXPECT_THAT(onDrive({"setpoint", "-30", "--incremental"}).out.toStdString(), StartsWith("running\t70\t"));
    EXPECT_THAT(onDrive({"setpoint", "-30"}).out.toStdString(), StartsWith("running\t-30\t"));
}

TEST_F(CliMotion, SetpointThatTheDriveCannotTakeOrFollowIsSaidSo)
{
    good(onDrive({"setpoint", "536870911"}), "disabled\t536870911\t0\n",
         "The drive is not running; the axis goes there when it does.\n");
    bus().clearReceived();
    failed(onDrive({"setpoint", "1", "--incremental"}), HasSubstr("would be 536870912, beyond the 30 bits"));
    EXPECT_THAT(sent(), Not(Contains("822600000001")));

    refuseWrites(551);
    failed(onDrive({"setpoint", "5"}), HasSubstr("did not take it: its setpoint in use is 536870911."));
}

TEST_F(CliMotion, ClearFaultsTellsWhichOnesStay)
{
    bus().set(DriveAddress, faultRegister, trackingFault);
    good(onDrive({"clear-faults"}));
    EXPECT_EQ(bus().read(DriveAddress, faultRegister), 0);

    bus().set(DriveAddress, temperature, 120);
    ASSERT_TRUE(bus().waitForRegister(DriveAddress, faultRegister, overTemperature));
    failed(onDrive({"clear-faults"}), "Still active: Over temperature.\n");
}

TEST_F(CliMotion, HomingRunsToItsEnd)
{
    bus().set(DriveAddress, homingSettings, 0x80); // to the stop pin
    bus().set(DriveAddress, homingVelocity, 4000);
    failed(onDrive({"home"}), HasSubstr("not enabled, so it was not asked to home.\nReason for inactivity: "));
    EXPECT_EQ(bus().read(DriveAddress, statusRegister) & homing, 0);

    ASSERT_TRUE(enableByHand());
    good(onDrive({"home"}), StartsWith("running\t0\t"));
    EXPECT_THAT(sent(), Contains("9d6c00000001"));
    EXPECT_THAT(sent(), Not(Contains("9d6c00000000")));

    bus().set(DriveAddress, homingSettings, 0);
    failed(onDrive({"home"}), HasSubstr("The drive did not start homing."));
}

TEST_F(CliMotion, HomingThatTakesTooLongOrIsInterruptedIsAborted)
{
    bus().set(DriveAddress, homingSettings, 0x80);
    bus().set(DriveAddress, homingVelocity, 50);
    ASSERT_TRUE(enableByHand());
    failed(onDrive({"home", "--time-out", "0.1"}), "Homing was aborted before it was done.\n");
    EXPECT_EQ(bus().read(DriveAddress, statusRegister) & homing, 0);
    EXPECT_TRUE(isRunning()) << "the command had not enabled it";

    for (const bool abortIsTaken : {true, false}) {
        if (!abortIsTaken)
            refuseWrites(7532, 0);
        // Time to interrupt it before a poll shows that it homes: what was polled before the abort must not count.
        bus().setTurnAround(std::chrono::milliseconds(abortIsTaken ? 0 : 50));
        bus().clearReceived();
        RunningOnDrive process({"home"});
        ASSERT_TRUE(waitForPayload("9d6c00000001"));
        sendSignal(process);
        const Ran ran = finish(process);
        EXPECT_NE(ran.status, 0);
        EXPECT_EQ(ran.err.contains("has not confirmed that homing is aborted"), !abortIsTaken);
        EXPECT_THAT(sent(), Contains("9d6c00000000"));
        EXPECT_EQ(!(bus().read(DriveAddress, statusRegister) & homing), abortIsTaken);
    }
}
