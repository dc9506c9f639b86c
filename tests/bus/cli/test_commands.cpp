#include "cliprocess.h"
#include "testfiles.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr int KVP = 202;
constexpr int KPP = 201;

using Cli = CliFixture;

class CliTwoDrives : public CliFixture
{
    sim::BusOptions busOptions() const override { return {{{"keta", 3, false}, {"torva", 7, false}}}; }
};

} // namespace

TEST_F(CliTwoDrives, AreListedAndHaveToBeNamed)
{
    EXPECT_EQ(run({"--port", port(), "scan"}).out, "3\tKETA\t11000\tnormal\n7\tTORVA\t4000\tnormal\n");
    failed(run({"--port", port(), "read", "KVP"}),
           "There are several drives; choose one with --node:\n3\tKETA\n7\tTORVA\n", "");
    // One that cannot be read does not make the other the only one.
    bus().setFault({sim::LineFault::Flip, 6, 0, 3});
    failed(run({"--port", port(), "read", "KVP"}),
           "There are several drives; choose one with --node:\n3\tanswers that cannot be read\n7\tTORVA\n");
}

TEST_F(CliTwoDrives, DisableWithoutAnAddressLeavesNoDriveRunning)
{
    const QStringList disable = {"--port", port(), "disable"};
    const auto enableBoth = [this] {
        for (int address : {3, 7})
            write(softEnable, 1, address);
    };
    enableBoth();
    bus().setFault({sim::LineFault::Missing, 0, 0, 1}); // hides the first drive from the first search
    good(run(disable), "7\tTORVA\tdisabled\n3\tKETA\tdisabled\n",
         "Without --node, only the drives that answered on COM1 were told to disable.\n");
    EXPECT_EQ(bus().read(3, softEnable) + bus().read(7, softEnable), 0);

    enableBoth();
    bus().withDrive(3, [](sim::VirtualDrive &drive) { drive.refuseWrites(softEnable); });
    failed(run(disable), HasSubstr("The drive at address 3 on COM1 answers, but shows that it is still"),
           "3\tKETA\tunconfirmed\n7\tTORVA\tdisabled\n");
    EXPECT_EQ(bus().read(7, softEnable), 0);
}

TEST_F(Cli, WhatWritesOrMovesNeedsANameForItsDrive)
{
    for (const QStringList &command : {QStringList{"write", "KVP=400"}, QStringList{"setpoint", "1"}})
        failed(run(QStringList{"--port", port()} + command),
               "This command writes to a drive or moves it: name the drive with --node. The search found:\n5\tKETA\n");
    EXPECT_EQ(bus().read(DriveAddress, KVP), 360);
    EXPECT_EQ(run({"--virtual-drive", "write", "KVP=400"}).out, "KVP\t400\t0\t32767\n") << "its own bus";
}

TEST_F(Cli, TheOnlyDriveNeedsNoNode)
{
    const Ran ran = good(run({"--port", port(), "--json", "read", "KPP", "AXS"}));
    const QJsonObject kpp{{"name", "KPP"}, {"value", 120}, {"minimum", 0}, {"maximum", 32767}};
    const QJsonObject axs{{"name", "AXS"}, {"value", 1}, {"minimum", 0.00001}, {"maximum", 5000}};
    EXPECT_EQ(ran.json().array(), (QJsonArray{kpp, axs}));
}

TEST_F(Cli, ReadPrintsAllSettingsInCatalogueOrderOrThoseNamedInTheirs)
{
    EXPECT_THAT(onDrive({"read"}).out.toStdString(), testing::StartsWith("TCFWVER\t1078\t0\t536870911\nFWVER\t"));
    // 800 drive units at 50/3 a unit.
    EXPECT_EQ(onDrive({"read", "KVP", "FOC", "CM"}).out, "KVP\t360\t0\t32767\nFOC\t48\t0.6\t57.6\nCM\t0\t0\t2\n");
}

TEST_F(Cli, WriteAppliesAndShowsWhatTheDriveHoldsThen)
{
    good(onDrive({"write", "KVP=400.4", "KPP=99"}), "KVP\t400\t0\t32767\nKPP\t99\t0\t32767\n");
    EXPECT_EQ(bus().read(DriveAddress, KVP), 400);
    EXPECT_EQ(bus().read(DriveAddress, KPP), 99);
    bus().powerCycle();
    EXPECT_EQ(bus().read(DriveAddress, KVP), 360) << "saved to flash without having been asked to";

    EXPECT_EQ(onDrive({"--json", "write", "KVP=400", "--to-flash"}).json().object()["savedToFlash"], true);
    bus().powerCycle();
    EXPECT_EQ(bus().read(DriveAddress, KVP), 400);
}

TEST_F(Cli, AValueThatTheDriveDoesNotTakeIsReportedAndNothingGoesToFlash)
{
    refuseWrites(KVP);
    failed(onDrive({"write", "KVP=400", "KPP=99", "--to-flash"}),
           AllOf(HasSubstr("KVP: 400 was not taken, the drive has 360."), HasSubstr("nothing was saved to flash")),
           "KVP\t360\t0\t32767\nKPP\t99\t0\t32767\n");
    bus().powerCycle();
    EXPECT_EQ(bus().read(DriveAddress, KPP), 120);
}

TEST_F(Cli, RefusesBeforeAnythingIsWritten)
{
    const std::pair<const char *, std::string> refused[] = {
        {"KPP=32768", "KPP=32768 is outside the drive's limits, 0 to 32767."},
        {"KPP=-1", "KPP=-1 is outside the drive's limits, 0 to 32767."},
        {"HWTYPE=4000", "HWTYPE is read-only."},
        {"TRF1=2", "TRF1 is not on this model (KETA)."},
        {"overrideAddr1=554",
         "overrideAddr1=554 is refused: that register is a command to the drive and not a setting."},
    };
    for (const auto &[assignment, reason] : refused) {
        failed(onDrive({"write", "KVP=400", assignment}), reason + "\nNothing was written.\n", "");
        EXPECT_EQ(bus().read(DriveAddress, KVP), 360) << assignment;
    }
}

TEST_F(Cli, FileGoesOutAndComesBack)
{
    good(onDrive({"save", "axis.drc"}), "");
    good(onDrive({"compare", "axis.drc"}), "");
    bus().set(DriveAddress, KVP, 400);
    ended(3, onDrive({"compare", "axis.drc"}), "KVP\t400\t360\n");
    EXPECT_EQ(onDrive({"--json", "compare", "axis.drc"}).json().array(),
              (QJsonArray{QJsonObject{{"name", "KVP"}, {"drive", 400}, {"file", 360}}}));

    good(onDrive({"load", "axis.drc"}), "KVP\t360\t0\t32767\n");
    EXPECT_EQ(bus().read(DriveAddress, KVP), 360);
}

TEST_F(Cli, FileOfAModelThatLacksASettingLeavesTheDriveItsOwn)
{
    startBus({{{"torva", DriveAddress, false}}});
    good(onDrive({"save", "torva.drc"}));
    startBus({{{"keta", DriveAddress, false}}});
    constexpr int inputLogic = 573; // CEI, not on Torva: -1 in the file
    bus().set(DriveAddress, inputLogic, 1);
    ended(3, onDrive({"compare", "torva.drc"}), Not(HasSubstr("CEI")),
          AllOf(HasSubstr("Warning: the loaded file is saved on different device type TORVA"),
                HasSubstr("The file has no value for CEI")));
    onDrive({"load", "torva.drc"});
    EXPECT_EQ(bus().read(DriveAddress, inputLogic), 1);
}

TEST_F(Cli, FileThatWantsACommandWrittenIsNoSuccess)
{
    good(onDrive({"save", "axis.drc"}));
    QByteArray text = contents("axis.drc");
    const int value = text.indexOf("value=", text.indexOf("overrideAddr2"));
    text.replace(value, int(strlen("value=0")), "value=554");
    put("axis.drc", text);
    failed(onDrive({"load", "axis.drc", "--to-flash"}),
           AllOf(HasSubstr("overrideAddr2 was not written: register 554 is a command"),
                 HasSubstr("nothing was saved to flash")));
}

TEST_F(Cli, BadFileIsRefusedAndNothingIsWritten)
{
    put("noise.drc", QByteArray(100000, '\x5a'));
    for (const char *file : {"noise.drc", "missing.drc", "."})
        failed(onDrive({"load", file}), testing::EndsWith("Nothing was written.\n"));
    EXPECT_EQ(onDrive({"compare", "noise.drc"}).status, 1);
    EXPECT_EQ(onDrive({"save", "/nowhere/axis.drc"}).err, "Error writing settings to file /nowhere/axis.drc\n");
}

TEST_F(Cli, StatusTellsIdentityAndRegistersInWords)
{
    const Ran ran = good(onDrive({"status"}));
    for (const char *line :
         {"Connection\tConnected", "Port\tCOM1", "Address\t5", "Mode\tnormal", "Model\tTarnwell Devices KETA",
          "HW type ID\t11000", "Serial number\t240117", "TarnwellCore firmware version\t1078",
          "Firmware revision ID\t1A4C7E2", "HV bus voltage  48.0 VDC"})
        EXPECT_TRUE(ran.lines().contains(line)) << line << "\nin\n" << ran.out.toStdString();
    EXPECT_FALSE(ran.out.contains('<')) << ran.out.toStdString();

    const QJsonObject json = onDrive({"--json", "status"}).json().object();
    EXPECT_EQ(json["model"], "Tarnwell Devices KETA");
    EXPECT_EQ(json["typeId"], 11000);
    EXPECT_TRUE(json["faults"].toArray().contains("○  Over current"));
}

TEST(CliVirtualDrive, BringsItsOwnBusAndKeepsTheCallersFolder)
{
    PrivateFolder folder;
    good(run({"--virtual-drive=torva,keta", "--node", "6", "save", "mine.drc"}));
    EXPECT_TRUE(QFile::exists("mine.drc"));
    EXPECT_EQ(run({"--virtual-drive", "--node", "5", "compare", "mine.drc"}).status, 0);
}
