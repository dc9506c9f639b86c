// Upgrades, restarts and firmware files.
#include "cliprocess.h"

#include "firmwarewriter.h"
#include "numberedwords.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

using testing::Contains;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

class CliFirmware : public CliFixture
{
protected:
    void SetUp() override
    {
        CliFixture::SetUp();
        // 100 words make four chunks.
        write("keta.tdf", sim::firmwareFile(11000, numberedWords(100, 0x1000), {}));
        write("torva.tdf", sim::firmwareFile(4000, numberedWords(100, 0x2000), numberedWords(50, 0x3000)));
    }
    static void write(const char *name, const sim::Bytes &bytes) { ASSERT_EQ(sim::writeFile(name, bytes), ""); }
    void useDrive(const char *profile, bool upgradeMode) { startBus({{{profile, DriveAddress, upgradeMode}}}); }
    /// Without the pauses that a real flash needs.
    static Ran withoutPauses(const QStringList &arguments)
    {
        return run(QStringList{"--port", port(), "--pause-scale", "0.02"} + arguments);
    }
    int addressNow()
    {
        int address = 0;
        bus().withDrive(DriveAddress, [&address](sim::VirtualDrive &drive) { address = drive.address(); });
        return address;
    }
};

} // namespace

TEST_F(CliFirmware, UpgradeIsToldLineByLineOrAsJson)
{
    useDrive("keta", true);
    Ran ran = good(withoutPauses({"flash", "keta.tdf"}), testing::_, "");
    EXPECT_THAT(ran.lines().first().toStdString(), EndsWith("keta.tdf firmware file loaded successfully"));
    EXPECT_THAT(ran.lines().last().toStdString(), StartsWith("All done with success! Drive has been started with"));
    EXPECT_EQ(addressNow(), 16);
    EXPECT_EQ(withoutPauses({"--node", "16", "restart"}).out, "5\tKETA\t11000\tnormal\n");

    useDrive("torva", true);
    ran = good(withoutPauses({"--json", "flash", "torva.tdf"}));
    EXPECT_EQ(ran.json().object()["done"], true);
    EXPECT_TRUE(ran.json().object()["messages"].toArray().contains("STEP2: TarnwellCore firmware"));

    useDrive("keta", true);
    good(withoutPauses({"flash", "keta.tdf", "--reset-to-factory"}));
    EXPECT_THAT(sent(), Contains("80bf0000000b"));
}

TEST_F(CliFirmware, WhatCannotWorkIsRefusedBeforeTheErase)
{
    useDrive("keta", true);
    failed(withoutPauses({"flash", "torva.tdf"}),
           "Error: Selected firmware file not meant for the connected device type\n", "");

    useDrive("torva", true);
    failed(withoutPauses({"flash", "torva.tdf", "--reset-to-factory"}),
           "A TORVA cannot reset its settings in an upgrade.\n");
    EXPECT_THAT(sent(), Not(Contains(StartsWith("80bf"))));

    useDrive("keta", false);
    failed(onDrive({"flash", "keta.tdf"}),
           "The drive at address 5 is not in firmware-upgrade mode; see \"restart --upgrade-mode\".\n");
}

TEST_F(CliFirmware, OneCtrlCLeavesTheUpgradeRunningASecondBreaksItOff)
{
    write("keta.tdf", sim::firmwareFile(11000, numberedWords(3200, 0), {}));
    for (const bool twice : {false, true}) {
        useDrive("keta", true);
        bus().setTurnAround(std::chrono::milliseconds(5));
        QProcess process;
        start(process, {"--port", port(), "--pause-scale", "0.02", "flash", "keta.tdf"});
        ASSERT_TRUE(waitForRequests(20));
        sendSignal(process);
        QByteArray told;
        while (!told.contains('\n') && process.waitForReadyRead(20000))
            told += process.readAllStandardError();
        EXPECT_THAT(told.toStdString(), StartsWith("An upgrade is running."));
        if (twice)
            sendSignal(process);
        const Ran ran = ended(twice, finish(process));
        EXPECT_EQ(ran.err.contains("Interrupted."), twice) << ran.err.toStdString();
        EXPECT_EQ(addressNow(), twice ? 255 : 16);
    }
}

TEST_F(CliFirmware, RestartsAndFindsTheDriveAgain)
{
    good(withoutPauses({"--node", "5", "restart"}), "5\tKETA\t11000\tnormal\n");
    const Ran ran = good(withoutPauses({"--node", "5", "--json", "restart", "--upgrade-mode"}));
    EXPECT_EQ(ran.json().object(),
              (QJsonObject{{"address", 255}, {"model", "KETA"}, {"typeId", 11000}, {"mode", "upgrade"}}));
    EXPECT_EQ(addressNow(), 255);
}

TEST_F(CliFirmware, RestartThatCannotBeOrIsNotSeenIsNoSuccess)
{
    useDrive("torva", false);
    failed(withoutPauses({"--node", "5", "restart", "--upgrade-mode"}),
           StartsWith("A TORVA cannot be restarted into firmware-upgrade mode"));
    EXPECT_EQ(addressNow(), 5);

    // 554 := 2 executed, and from then on silence.
    RunningOnDrive process({"--pause-scale", "0.02", "restart"});
    ASSERT_TRUE(waitForPayload("822a00000002"));
    bus().setFault({sim::LineFault::Deaf});
    failed(finish(process), Not(""), "");
}

TEST(CliFirmwareInfo, TellsWhatAFileHoldsWithoutADrive)
{
    PrivateFolder folder;
    sim::Bytes bytes = sim::firmwareFile(4000, numberedWords(100, 0), numberedWords(50, 0));
    ASSERT_EQ(sim::writeFile("good.tdf", bytes), "");
    bytes[40] ^= 1;
    ASSERT_EQ(sim::writeFile("flipped.tdf", bytes), "");
    bytes.resize(200);
    ASSERT_EQ(sim::writeFile("cut.tdf", bytes), "");
    ASSERT_EQ(sim::writeFile("noise.tdf", sim::Bytes(1000, 0x55)), "");

    good(run({"firmware-info", "good.tdf"}),
         "Format version\t300\nDevice type\t4000\nDevice family\tTorva\nI/O image\t200 bytes\n"
         "TarnwellCore image\t100 bytes\nChecksum\tright\n");
    const Ran ran = ended(1, run({"--json", "firmware-info", "flipped.tdf"}));
    EXPECT_EQ(ran.json().object()["checksum"], "wrong");
    EXPECT_EQ(ran.json().object()["coreImageBytes"], 100);
    failed(run({"firmware-info", "cut.tdf"}), "File corrupted: it has 200 bytes, its header says 320\n",
           EndsWith("Checksum\tnot checked\n"));
    failed(run({"firmware-info", "noise.tdf"}), "Unknown file type\n", "");
}
