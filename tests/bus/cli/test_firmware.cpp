// Upgrades, restarts and firmware files.
#include "cliprocess.h"

#include "firmwarewriter.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

using testing::Contains;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

using Words = std::vector<std::uint16_t>;

/// 100 words make four chunks.
Words image(int words, std::uint16_t first)
{
    Words result;
    for (int i = 0; i < words; ++i)
        result.push_back(static_cast<std::uint16_t>(first + i));
    return result;
}

class CliFirmware : public VirtualBusFixture
{
protected:
    void SetUp() override
    {
        VirtualBusFixture::SetUp();
        write("keta.tdf", sim::firmwareFile(11000, image(100, 0x1000), {}));
        write("torva.tdf", sim::firmwareFile(4000, image(100, 0x2000), image(50, 0x3000)));
    }
    static void write(const char *name, const sim::Bytes &bytes) { ASSERT_EQ(sim::writeFile(name, bytes), ""); }
    void useDrive(const char *profile, bool upgradeMode)
    {
        startBus({{{profile, DriveAddress, upgradeMode}}});
    }
    /// Without --node, and without the pauses that a real flash needs.
    static Ran withoutNode(const QStringList &arguments)
    {
        return run(QStringList{"--port", port(), "--pause-scale", "0.02"} + arguments);
    }
    std::vector<std::string> sent() { return payloads(bus().received()); }
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
    Ran ran = withoutNode({"flash", "keta.tdf"});
    EXPECT_EQ(ran.status, 0) << ran.err.toStdString();
    EXPECT_EQ(ran.err, "");
    EXPECT_THAT(ran.lines().first().toStdString(), EndsWith("keta.tdf firmware file loaded successfully"));
    EXPECT_THAT(ran.lines().last().toStdString(), StartsWith("All done with success! Drive has been started with"));
    EXPECT_EQ(addressNow(), 16);
    EXPECT_EQ(run({"--port", port(), "--pause-scale", "0.02", "--node", "16", "restart"}).out,
              "5\tKETA\t11000\tnormal\n");

    useDrive("torva", true);
    ran = withoutNode({"--json", "flash", "torva.tdf"});
    EXPECT_EQ(ran.status, 0) << ran.err.toStdString();
    EXPECT_EQ(ran.json().object()["done"], true);
    EXPECT_TRUE(ran.json().object()["messages"].toArray().contains("STEP2: TarnwellCore firmware"));
}

TEST_F(CliFirmware, ResetsTheSettings)
{
    useDrive("keta", true);
    EXPECT_EQ(withoutNode({"flash", "keta.tdf", "--reset-to-factory"}).status, 0);
    EXPECT_THAT(sent(), Contains("80bf0000000b"));
}

TEST_F(CliFirmware, WhatCannotWorkIsRefusedBeforeTheErase)
{
    useDrive("keta", true);
    Ran ran = withoutNode({"flash", "torva.tdf"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.out, "");
    EXPECT_EQ(ran.err, "Error: Selected firmware file not meant for the connected device type\n");

    useDrive("torva", true);
    ran = withoutNode({"flash", "torva.tdf", "--reset-to-factory"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.err, "A TORVA cannot reset its settings in an upgrade.\n");
    EXPECT_THAT(sent(), Not(Contains(StartsWith("80bf"))));

    useDrive("keta", false);
    ran = onDrive({"flash", "keta.tdf"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.err, "The drive at address 5 is not in firmware-upgrade mode; see \"restart --upgrade-mode\".\n");
}

TEST_F(CliFirmware, OneCtrlCLeavesTheUpgradeRunningASecondBreaksItOff)
{
    write("keta.tdf", sim::firmwareFile(11000, image(3200, 0), {}));
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
        const Ran ran = finish(process);
        EXPECT_EQ(ran.status, twice ? 1 : 0);
        EXPECT_EQ(ran.err.contains("Interrupted."), twice) << ran.err.toStdString();
        EXPECT_EQ(addressNow(), twice ? 255 : 16);
    }
}

TEST_F(CliFirmware, RestartsAndFindsTheDriveAgain)
{
    const QStringList drive = {"--port", port(), "--pause-scale", "0.02", "--node", "5"};
    Ran ran = run(drive + QStringList{"restart"});
    EXPECT_EQ(ran.status, 0) << ran.err.toStdString();
    EXPECT_EQ(ran.out, "5\tKETA\t11000\tnormal\n");

    ran = run(drive + QStringList{"--json", "restart", "--upgrade-mode"});
    EXPECT_EQ(ran.status, 0) << ran.err.toStdString();
    EXPECT_EQ(ran.json().object(),
              (QJsonObject{{"address", 255}, {"model", "KETA"}, {"typeId", 11000}, {"mode", "upgrade"}}));
    EXPECT_EQ(addressNow(), 255);
}

TEST_F(CliFirmware, RestartThatCannotBeOrIsNotSeenIsNoSuccess)
{
    useDrive("torva", false);
    const QStringList drive = {"--port", port(), "--pause-scale", "0.02", "--node", "5", "restart"};
    Ran ran = run(drive + QStringList{"--upgrade-mode"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err.toStdString(), StartsWith("A TORVA cannot be restarted into firmware-upgrade mode"));
    EXPECT_EQ(addressNow(), 5);

    // 554 := 2 executed, and from then on silence.
    QProcess process;
    start(process, drive);
    ASSERT_TRUE(waitForPayload(bus(), "822a00000002"));
    bus().setFault({sim::LineFault::Deaf});
    ran = finish(process);
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.out, "");
    EXPECT_NE(ran.err, "");
}

TEST(CliFirmwareInfo, TellsWhatAFileHoldsWithoutADrive)
{
    PrivateFolder folder;
    sim::Bytes bytes = sim::firmwareFile(4000, image(100, 0), image(50, 0));
    ASSERT_EQ(sim::writeFile("good.tdf", bytes), "");
    bytes[40] ^= 1;
    ASSERT_EQ(sim::writeFile("flipped.tdf", bytes), "");
    bytes.resize(200);
    ASSERT_EQ(sim::writeFile("cut.tdf", bytes), "");
    ASSERT_EQ(sim::writeFile("noise.tdf", sim::Bytes(1000, 0x55)), "");

    Ran ran = run({"firmware-info", "good.tdf"});
    EXPECT_EQ(ran.status, 0) << ran.err.toStdString();
    EXPECT_EQ(ran.out, "Format version\t300\nDevice type\t4000\nDevice family\tTorva\nI/O image\t200 bytes\n"
                       "TarnwellCore image\t100 bytes\nChecksum\tright\n");
    ran = run({"--json", "firmware-info", "flipped.tdf"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.json().object()["checksum"], "wrong");
    EXPECT_EQ(ran.json().object()["coreImageBytes"], 100);
    ran = run({"firmware-info", "cut.tdf"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.err, "File corrupted: it has 200 bytes, its header says 320\n");
    EXPECT_THAT(ran.out.toStdString(), EndsWith("Checksum\tnot checked\n"));
    ran = run({"firmware-info", "noise.tdf"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.out, "");
    EXPECT_EQ(ran.err, "Unknown file type\n");
}
