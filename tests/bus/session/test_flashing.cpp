// The firmware upgrade: what reaches the flash, what is told, and that every failure is told exactly once.
#include "sessionfixture.h"

#include "firmwarewriter.h"
#include "numberedwords.h"

#include <QFile>

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::Field;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;
using Fault = sim::LineFault;

namespace {

QString writeFirmware(int type, const Words &io, const Words &core = {})
{
    const QString name = QDir::currentPath() + "/firmware.tdf";
    EXPECT_EQ(sim::writeFile(name.toStdString(), sim::firmwareFile(type, io, core)), "");
    return name;
}

class Flashing : public SessionFixture
{
protected:
    sim::BusOptions busOptions() const override { return upgradeModeOf("keta"); }
    static sim::BusOptions upgradeModeOf(const char *profile) { return {{{profile, 5, true}}}; }
    void SetUp() override
    {
        SessionFixture::SetUp();
        session().setPauseScale(0.001);
    }
    bool connectToBootloader()
    {
        const bool connected = connectTo(255);
        waitUntilIdle();
        bus().clearReceived();
        log().upgrade.clear();
        return connected;
    }
    /// Flashes and waits for the final message.
    bool flash(const QString &file, bool resetToFactory = false)
    {
        session().setFirmwareFileName(file, resetToFactory);
        session().command(Connection::TaskFlashFirmware);
        return waitUntil([this] { return !log().upgrade.isEmpty() && log().upgrade.last().done; });
    }
    std::vector<std::string> told()
    {
        std::vector<std::string> texts;
        for (const SessionLog::UpgradeMessage &message : log().upgrade)
            texts.push_back(message.text.toStdString());
        return texts;
    }
    Words programmed()
    {
        Words words;
        bus().withDrive(5, [&words](sim::VirtualDrive &drive) { words = drive.bootloader().programmedWords(); });
        return words;
    }
};

class FlashingTorva : public Flashing
{
    sim::BusOptions busOptions() const override { return upgradeModeOf("torva"); }
};

struct Failure
{
    const char *name;
    const char *profile;
    void (*prepare)(sim::VirtualBus &);
    const char *reason; ///< in the log before the final message
    const char *final;
};

void PrintTo(const Failure &failure, std::ostream *out)
{
    *out << failure.name;
}

template <int register_, int value, int after = 0> void refuse(sim::VirtualBus &bus)
{
    bus.withDrive(5, [](sim::VirtualDrive &drive) {
        drive.refuseWrites(register_, value < 0 ? std::nullopt : std::optional<std::int32_t>(value), after);
    });
}

template <Fault::Kind kind, int skip> void damage(sim::VirtualBus &bus)
{
    bus.setFault({kind, Fault::anyByte, skip});
}

const char *const ketaFailed = "Flashing firmware failed. Power off, reconnect and try again.";
const char *const coreFailed = "Flashing TarnwellCore firmware failed. Power off, reconnect and try again.";

const char *const startFailed = "but the drive has not confirmed that it starts it.";

// The upgrade's exchanges: query 0, erase 1, query 2, length control 3, chunks 4 to 13 (of 320 words), verify 14, query
// 15, result 16, protect 17, query 18, length control 19, and then the start (20) or the core's chunks.
const Failure failures[] = {
    {"EraseRefused", "keta", refuse<191, 1>, "Errors occurred: ", ketaFailed},
    {"UploadedWordRefused", "keta", refuse<192, -1, 100>, "* Command fail (NACK)", ketaFailed},
    {"EraseUnanswered", "keta", damage<Fault::Missing, 1>, "Communication error flags:", ketaFailed},
    {"LineLostAtTheFirstChunk", "keta", damage<Fault::Unplugged, 4>, "Communication error flags:", ketaFailed},
    {"LineLostAtAMiddleChunk", "keta", damage<Fault::Missing, 8>, "Communication error flags:", ketaFailed},
    {"LineLostAtTheLastChunk", "keta", damage<Fault::Unplugged, 13>, "Communication error flags:", ketaFailed},
    {"VerificationUnanswered", "keta", damage<Fault::Missing, 16>, "Communication error flags:", ketaFailed},
    {"VerificationFailed", "keta",
     [](sim::VirtualBus &bus) {
         bus.withDrive(5, [](sim::VirtualDrive &drive) { drive.bootloader().setVerificationFails(true); });
     },
     "did not pass device's verification", ketaFailed},
    {"VerificationRefused", "keta", refuse<191, 3>, "Errors occurred: ", ketaFailed},
    {"ProtectionRefused", "keta", refuse<191, 7>, "Errors occurred: ", ketaFailed},
    {"ProtectionUnanswered", "keta", damage<Fault::Missing, 17>, "Communication error flags:", ketaFailed},
    {"StartRefused", "keta", refuse<191, 4>, "* Command fail (NACK)", startFailed},
    {"StartUnanswered", "keta", damage<Fault::Missing, 20>, "Communication error flags:", startFailed},
    {"CoreRefused", "torva", refuse<191, 5>, "Errors occurred: ", coreFailed},
    {"LineLostInTheCore", "torva", damage<Fault::Unplugged, 21>, "Communication error flags:", coreFailed},
};

class FailedUpgrade : public Flashing, public testing::WithParamInterface<Failure>
{
    sim::BusOptions busOptions() const override { return upgradeModeOf(GetParam().profile); }
};

} // namespace

TEST_F(Flashing, ThirtyThreeWordsAreTwoChunksFilledUp)
{
    ASSERT_TRUE(connectToBootloader());
    const Words image = numberedWords(33);
    const QString file = writeFirmware(11000, image);
    ASSERT_TRUE(flash(file));
    EXPECT_THAT(told(), ElementsAre((file + " firmware file loaded successfully").toStdString(),
                                    "<b>Uploading firmware</b>", "Erasing existing firmware on device...",
                                    "Done. Uploading new firmware...", "Uploaded bytes: 128", "Done!",
                                    "Write protecting flash.", "Device memory contents verified and passed",
                                    HasSubstr("<b>All done with success!</b> Drive has been started")));
    EXPECT_FALSE(log().upgrade.last().failed);

    std::string firstChunk = "80c0", secondChunk = "80c0 40a020"; // register 192
    for (int i = 0; i < 32; ++i)
        firstChunk += "40" + hex({0xa0, std::uint8_t(i)});
    for (int i = 0; i < 31; ++i)
        secondChunk += "40eeee";
    const std::string program = "80bf 400002"; // register 191
    const std::string query = "800a 400000 8009 40000d 800d 00000000";
    ASSERT_TRUE(waitForDisconnect());
    EXPECT_THAT(payloads(), ElementsAre(wire(query), wire("80bf 00000001"), wire(query), wire("800a 00000003"),
                                        wire(firstChunk + program), wire(secondChunk + program), wire("80bf 00000003"),
                                        wire(query), wire("800a 400000 8009 400228"), wire("80bf 00000007"),
                                        wire(query), wire("800a 00000003"), wire("80bf 00000004")));
    Words expected = image;
    expected.resize(64, 0xEEEE);
    EXPECT_THAT(programmed(), ElementsAreArray(expected));
    EXPECT_TRUE(log().errors.isEmpty());

    session().setPauseScale(1);
    EXPECT_TRUE(connectTo(16)) << "the one-time address of the new firmware";
}

TEST_F(Flashing, AKetaResetsItsSettingsWithTheEraseAndAFullProgressLineIsToldTwice)
{
    ASSERT_TRUE(connectToBootloader());
    leaveErrorBit(); // from before: no reason to fail this upgrade
    ASSERT_TRUE(flash(writeFirmware(11000, numberedWords(1024)), true));
    EXPECT_EQ(received(wire("80bf 0000000b")), 1);
    EXPECT_EQ(received(wire("80bf 00000001")), 0);
    EXPECT_THAT(told(), Contains("Uploaded bytes: 2048").Times(2));
    EXPECT_FALSE(log().upgrade.last().failed);
}

TEST_F(Flashing, ABootloaderIsOnlyAskedForWhatItKnows)
{
    for (const int version : {1209, 1210, 1259, 1260}) {
        SCOPED_TRACE(version);
        const bool verifies = version >= 1210, protects = version >= 1260;
        startBus(busOptions());
        bus().withDrive(5, [&](sim::VirtualDrive &drive) { drive.bootloader().setVersion(version); });
        newSession();
        session().setPauseScale(0.001);
        ASSERT_TRUE(connectToBootloader());
        ASSERT_TRUE(flash(writeFirmware(11000, numberedWords(32))));
        EXPECT_FALSE(log().upgrade.last().failed);
        EXPECT_EQ(received(wire("80bf 00000003")), verifies);
        EXPECT_EQ(received(wire("80bf 00000007")), protects);
        EXPECT_THAT(told(), Contains("Device memory contents verified and passed").Times(verifies));
    }
}

TEST_F(FlashingTorva, WritesBothProcessors)
{
    ASSERT_TRUE(connectToBootloader());
    const Words io = numberedWords(64), core = numberedWords(96);
    ASSERT_TRUE(flash(writeFirmware(4000, io, core), true));
    EXPECT_EQ(payloads()[1], wire("80bf 00000001")) << "the reset is a Keta's";
    EXPECT_THAT(told(), IsSupersetOf({"<b>STEP1: I/O side firmware</b>", "I/O side flash contents verified and passed",
                                      "<b>STEP2: TarnwellCore firmware</b>",
                                      "TarnwellCore flash contents verified and passed"}));
    EXPECT_FALSE(log().upgrade.last().failed);
    EXPECT_THAT(programmed(), ElementsAreArray(io));
    bus().withDrive(
        5, [&](sim::VirtualDrive &drive) { EXPECT_THAT(drive.bootloader().coreWords(), ElementsAreArray(core)); });
    EXPECT_THAT(payloads(), Contains(StartsWith("80c0")).Times(2 + 3)) << "chunks";
    EXPECT_THAT(payloads(), Contains(HasSubstr("80bf400002")).Times(2)) << "programmed: none in the core step";
}

TEST_F(FlashingTorva, WithoutACoreImageTheCoreStaysAsItIs)
{
    ASSERT_TRUE(connectToBootloader());
    ASSERT_TRUE(flash(writeFirmware(4000, numberedWords(32))));
    EXPECT_THAT(told(),
                Contains("The FW file does not contain TarnwellCore firmware, previously installed TarnwellCore "
                         "FW will remain intact"));
    EXPECT_FALSE(log().upgrade.last().failed);
    EXPECT_THAT(payloads(), Not(Contains(wire("80bf 00000005"))));
}

TEST_F(Flashing, NoDriveInUpgradeModeOrAFileThatIsNotForItErasesNothing)
{
    ASSERT_TRUE(flash(writeFirmware(11000, numberedWords(32))));
    EXPECT_THAT(told(), ElementsAre("Error: No device in firmware upgrade mode is connected"));
    EXPECT_TRUE(log().upgrade.last().failed);
    const auto fresh = [](int type, const Words &io, const char *name) {
        QFile::copy(writeFirmware(type, io), name);
        return QString(name);
    };
    const std::pair<QString, const char *> files[] = {
        {"missing.tdf", "Error: Can't open file"},
        {fresh(4000, numberedWords(32), "torva.tdf"),
         "Error: Selected firmware file not meant for the connected device type"},
        {fresh(11000, {}, "empty.tdf"), "Error: The file does not contain a firmware"},
    };
    for (const auto &[name, message] : files) {
        newSession();
        ASSERT_TRUE(connectToBootloader());
        ASSERT_TRUE(flash(name));
        EXPECT_THAT(told(), ElementsAre(message));
        EXPECT_TRUE(log().upgrade.last().failed);
        ASSERT_TRUE(waitUntilIdle());
        EXPECT_THAT(payloads(), Not(Contains(HasSubstr("80bf"))));
        EXPECT_TRUE(session().isConnected());
    }
}

TEST_F(Flashing, ARestartOutOfUpgradeModeEndsTheConnectionWithoutAComplaint)
{
    ASSERT_TRUE(connectToBootloader());
    session().setPauseScale(0.1); // longer than the virtual drive restarts
    session().command(Connection::TaskRestartDrive);
    ASSERT_TRUE(waitForDisconnect());
    EXPECT_TRUE(connectTo()) << "back at its own address";
    EXPECT_TRUE(log().errors.isEmpty());
}

TEST_P(FailedUpgrade, IsToldOnceAndCanBeRepeated)
{
    const bool torva = std::string(GetParam().profile) == "torva";
    session().setReplyTimeout(shortTimeoutMs);
    ASSERT_TRUE(connectToBootloader());
    GetParam().prepare(bus());
    const QString file =
        torva ? writeFirmware(4000, numberedWords(320), numberedWords(320)) : writeFirmware(11000, numberedWords(320));
    ASSERT_TRUE(flash(file));
    ASSERT_TRUE(leave());
    ASSERT_TRUE(waitUntilIdle());
    EXPECT_THAT(log().upgrade, Contains(Field(&SessionLog::UpgradeMessage::done, true)).Times(1));
    EXPECT_TRUE(log().upgrade.last().failed);
    EXPECT_THAT(told().back(), HasSubstr(GetParam().final));
    EXPECT_THAT(told(), Contains(HasSubstr(GetParam().reason)));
    EXPECT_TRUE(log().errors.isEmpty()) << "it has been told in the log of the upgrade";

    // Cut off: powered again it comes up in upgrade mode, is found there and takes the upgrade.
    repairLine();
    bus().withDrive(5, [](sim::VirtualDrive &drive) {
        drive.acceptWrites();
        drive.bootloader().setVerificationFails(false);
    });
    bus().powerCycle();
    if (bus().read(5, 2) != 0) // nothing had been erased
        bus().withDrive(5, [](sim::VirtualDrive &drive) { drive.powerUpInUpgradeMode(); });
    session().setReplyTimeout(1000);
    ASSERT_TRUE(connectToBootloader());
    ASSERT_TRUE(flash(file));
    EXPECT_FALSE(log().upgrade.last().failed);
    EXPECT_THAT(programmed(), SizeIs(320));
}

INSTANTIATE_TEST_SUITE_P(Any, FailedUpgrade, testing::ValuesIn(failures),
                         [](const auto &info) { return info.param.name; });

TEST_F(SessionFixture, ADriveRestartedIntoUpgradeModeIsTakenForWhatItIs)
{
    ASSERT_TRUE(connectTo());
    session().setPauseScale(0.1); // longer than the virtual drive restarts
    session().command(Connection::TaskRestartToDFU);
    ASSERT_TRUE(waitUntil([this] { return session().isInFirmwareUpgradeMode(); }));
    ASSERT_TRUE(runToEnd(Connection::TaskUpdateStatus));
    EXPECT_TRUE(session().isConnected());
    bus().clearReceived();
    ASSERT_TRUE(leave());
    EXPECT_THAT(payloads(), Not(Contains(wire("800f 00000000")))) << "a bootloader has no watchdog";
    EXPECT_TRUE(log().errors.isEmpty());
}
