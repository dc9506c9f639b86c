// Finding drives, connecting to them, being refused, and leaving: what is said to the user and on the wire.
#include "sessionfixture.h"

#include <QProcess>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;
using Fault = sim::LineFault;

namespace {

const QString cannotOpen = "Unable to connect. Possibly incompatible COM adapter selected or device is already used by "
                           "another application";

class Connecting : public SessionFixture
{
protected:
    bool scan()
    {
        const int before = log().nodes.size();
        session().getListOfBusNodes(port());
        return waitUntil([this, before] { return log().nodes.size() > before; });
    }
    void expectCannotOpen(const char *name, const char *why)
    {
        session().connectDevice(name, 5);
        session().getParams();
        session().checkErrors();
        ASSERT_TRUE(waitUntil([this] { return !log().errors.isEmpty(); })) << name;
        EXPECT_THAT(log().errors, SizeIs(1));
        session().getListOfBusNodes(name);
        ASSERT_TRUE(waitUntil([this] { return log().errors.size() == 2; })) << name;
        for (const QString &error : log().errors)
            EXPECT_EQ(error, cannotOpen + "<br>" + QString(why).arg(name));
        ASSERT_THAT(log().statuses, SizeIs(2));
        EXPECT_EQ(log().statuses.last().text, "Connect failed");
        EXPECT_TRUE(log().read.isEmpty() && log().nodes.isEmpty());
    }
    void expectRefused(MessageKind kind, const testing::Matcher<std::string> &error,
                       const char *status = "Connect failed")
    {
        EXPECT_FALSE(connectTo());
        expectToldOnce(kind, error);
        EXPECT_THAT(log().statuses, SizeIs(1));
        EXPECT_EQ(log().statuses.last().text, status);
        EXPECT_EQ(session().deviceType(), 0);
        EXPECT_FALSE(session().deviceHasCapability(Connection::CapMeasureRL));
    }
    void makeTooOld()
    {
        bus().set(5, 6014, 1077);
        bus().set(5, 6015, 1077);
    }
};

class TwoDrives : public Connecting
{
    sim::BusOptions busOptions() const override { return {{{"keta", 3}, {"torva", 7}}}; }
};

class InUpgradeMode : public Connecting
{
    sim::BusOptions busOptions() const override { return {{{"keta", 5, true}}}; }
};

} // namespace

TEST_F(TwoDrives, AScanAsksThe25AddressesInOrderAndListsWhatAnswers)
{
    ASSERT_TRUE(scan());
    std::vector<int> asked;
    for (const sim::ReceivedRequest &request : bus().received())
        asked.push_back(request.packet.address);
    EXPECT_LE(asked.size(), 27u) << "once, and again where a late reply of one of the two came in";
    asked.erase(std::unique(asked.begin(), asked.end()), asked.end());
    EXPECT_THAT(asked, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 251, 252, 253,
                                   254, 255));
    // Registers 6020 and 2.
    EXPECT_EQ(hex(bus().received().front().packet.payload), wire("800a 400000 8009 401784 800a 400000 8009 400002"));

    const QList<NodeType> nodes = log().nodes.last();
    ASSERT_EQ(nodes.size(), 2);
    EXPECT_EQ(nodes[0].address, 3);
    EXPECT_EQ(nodes[0].deviceType, 11000);
    EXPECT_FALSE(nodes[0].firmwareUpgradeMode);
    EXPECT_EQ(nodes[1].address, 7);
    EXPECT_EQ(nodes[1].deviceType, 4000);
    EXPECT_THAT(log().busy, ElementsAre(true, false));
    EXPECT_TRUE(log().errors.isEmpty());
}

TEST_F(TwoDrives, AnAddressWhoseReplyWasDamagedIsAskedAgain)
{
    enum Found { Absent, Readable, Unreadable };
    const struct
    {
        const char *name;
        std::vector<sim::LineFault> faults;
        Found at3, at7;
    } rows[] = {
        // Not two of the same address, of three: a machine that is busy may make the third one late.
        {"a reply of each", {{sim::LineFault::Flip, 6, 0, 1}, {sim::LineFault::Double, 4, 1, 1}}, Readable, Readable},
        {"the first never readable", {{sim::LineFault::Flip, 6, 0, 3}}, Unreadable, Readable},
        {"none readable", {{sim::LineFault::Drop, 3}}, Unreadable, Unreadable},
    };
    int late = 0;
    for (const auto &row : rows) {
        bus().setFaults(row.faults);
        bus().clearReceived();
        ASSERT_TRUE(scan()) << row.name;
        std::map<int, Found> found;
        for (const NodeType &node : log().nodes.last())
            found[node.address] = node.unreadable ? Unreadable : Readable;
        for (const auto &[address, expected] : {std::pair(3, row.at3), std::pair(7, row.at7)}) {
            // A reply that comes after 100 ms is silence, which is not asked again.
            if (found[address] == Absent && receivedAt(address).size() == 1)
                ++late;
            else
                EXPECT_EQ(found[address], expected) << row.name << ", " << address;
        }
    }
    EXPECT_LE(late, 1) << "of six on a machine that is busy";
}

TEST_F(TwoDrives, AReplyThatComesAfterItsTimeoutIsListedForTheDriveThatSentIt)
{
    // The one of address 3, while 4 is being asked, and that of address 7, while 11 is.
    for (const Fault &late : {Fault{Fault::Late, 130, 0, 1}, Fault{Fault::Late, 500, 1, 1}}) {
        bus().setFault(late);
        ASSERT_TRUE(scan());
        QList<int> addresses;
        for (const NodeType &node : log().nodes.last())
            addresses << node.address;
        EXPECT_THAT(addresses, ElementsAre(3, 7)) << "in order";
    }
}

TEST_F(InUpgradeMode, ADriveInUpgradeModeIsFoundAndWelcomed)
{
    bus().withDrive(5, [](sim::VirtualDrive &drive) {
        sim::Flash cutOff = drive.flash();
        cutOff.firmwareIntact = false;
        drive.powerUp(cutOff);
    });
    ASSERT_TRUE(scan());
    ASSERT_EQ(log().nodes.last().size(), 1);
    EXPECT_EQ(log().nodes.last().first().address, 255);
    EXPECT_TRUE(log().nodes.last().first().firmwareUpgradeMode);

    bus().clearReceived();
    ASSERT_TRUE(connectTo(255));
    ASSERT_TRUE(waitUntil([this] { return log().upgrade.size() == 2; }));
    EXPECT_TRUE(log().upgrade[0].text.startsWith(
        "Connected to device in firmware upgrade mode (bootloader version 1260). To begin upgrading, select file"));
    EXPECT_THAT(log().upgrade[1].text.toStdString(),
                HasSubstr("fault bits active (120 hex = chip firmware memory checksum mismatch). This could mean"));
    EXPECT_FALSE(log().upgrade[1].done || log().upgrade[1].failed);
    EXPECT_TRUE(session().isInFirmwareUpgradeMode());

    // What moves or writes settings does nothing, and the poll reads the fault register alone.
    session().setDriveEnableStatus(true);
    for (Connection::Task task : {Connection::TaskSetParams, Connection::TaskApplyEnableState,
                                  Connection::TaskStartHoming, Connection::TaskSetAbsoluteSetpoint})
        session().command(task);
    ASSERT_TRUE(runToEnd(Connection::TaskUpdateStatus));
    ASSERT_TRUE(leave());
    const std::vector<std::string> sent = payloadsOf(bus().received());
    ASSERT_GE(sent.size(), 3u);
    EXPECT_EQ(sent[0], wire("800a 400000 8009 401784 800a 400000 8009 40177a 800a 400000 8009 40177b"));
    EXPECT_EQ(sent[1], wire("800a 400000 8009 400003 800a 400000 8009 400004"));
    for (std::size_t i = 2; i < sent.size(); ++i)
        EXPECT_EQ(sent[i], wire("800a 400000 8009 400228"));
    EXPECT_FALSE(session().isInFirmwareUpgradeMode());
}

TEST_F(Connecting, IdentifiesTheDriveAndSwitchesTheWatchdogOff)
{
    ASSERT_TRUE(connectTo());
    EXPECT_EQ(log().statuses.last().text, "Connected");
    ASSERT_TRUE(waitForRequests(5));
    std::vector<std::string> sent = payloads();
    sent.resize(5);
    EXPECT_THAT(sent, ElementsAre(wire("800a 400000 8009 400002"),
                                  wire("800a 400000 8009 401784 800a 400000 8009 40177a 800a 400000 8009 40177b"),
                                  wire("800a 400000 8009 400003 800a 400000 8009 400004"),
                                  wire("800a 400000 8009 40177e 800a 400000 8009 40177f"), wire("800f 00000000")));
    EXPECT_TRUE(session().isConnected());
    EXPECT_EQ(session().deviceType(), 11000);
    EXPECT_TRUE(session().deviceHasCapability(Connection::CapMeasureRL));
    EXPECT_EQ(session().maxScopeSampleRate(), 20000.0);
    EXPECT_THAT(log().captureButton, ElementsAre(QString("Start capture")));
}

TEST_F(Connecting, LeavingSwitchesTheWatchdogOffAndForgetsTheDrive)
{
    ASSERT_TRUE(connectTo() && readAll());
    EXPECT_EQ(session().getActiveParamValue("HWTYPE"), 11000.0);
    bus().clearReceived();
    ASSERT_TRUE(leave());
    EXPECT_EQ(payloads().back(), wire("800f 00000000"));
    EXPECT_EQ(log().statuses.last().text, "Disconnected");
    EXPECT_EQ(session().deviceType(), 0);
    EXPECT_EQ(session().getActiveParamValue("HWTYPE"), 0.0);
    EXPECT_FALSE(session().deviceHasCapability(Connection::CapRestartToDFU));
    // The type stays gone also when the window hands its own set over.
    session().setParams(log().read.last());
    EXPECT_EQ(session().getActiveParamValue("HWTYPE"), 0.0);
    session().emitParameters();
    ASSERT_TRUE(waitUntil([this] { return !log().loaded.isEmpty(); }));
    EXPECT_EQ(log().loaded.last().getParam("HWTYPE").value, 0.0);

    // The record keeps its address, or the type could not be read any more.
    ASSERT_TRUE(connectTo() && readAll());
    EXPECT_EQ(session().getActiveParamValue("HWTYPE"), 11000.0);
    EXPECT_TRUE(log().errors.isEmpty());
}

TEST_F(Connecting, TasksWithoutADriveAreQuiet)
{
    for (int task = 3; task <= 31; ++task) {
        if (task != Connection::TaskQuit && !(task >= 17 && task <= 24))
            session().command(static_cast<Connection::Task>(task));
    }
    ASSERT_TRUE(connectTo());
    EXPECT_EQ(payloads().front(), wire("800a 400000 8009 400002"));
    EXPECT_TRUE(log().errors.isEmpty());
    EXPECT_TRUE(log().read.isEmpty());
    EXPECT_TRUE(log().busy.isEmpty());

    session().command(static_cast<Connection::Task>(17));
    ASSERT_TRUE(waitUntil([this] { return !log().errors.isEmpty(); }));
    EXPECT_EQ(log().errors.last(), "Invalid comm task");
}

TEST_F(Connecting, APortThatCannotBeOpenedIsSaidOnceAndWhy)
{
    const std::pair<const char *, const char *> cases[] = {
        {"/dev/ttyNotThere", "There is no port %1: check that the adapter is plugged in."},
        {"notAPort", "%1 is not a serial port."},
    };
    for (const auto &[name, why] : cases) {
        newSession();
        expectCannotOpen(name, why);
        EXPECT_EQ(log().messages.last().kind, MessageKind::ConnectFailed);
    }
}

TEST_F(Connecting, APortThatAnotherProgramHasIsSaidOnceAndWorksWhenItIsGivenBack)
{
    QProcess other;
    other.start("flock", {"--no-fork", "--exclusive", port(), "sleep", "60"});
    ASSERT_TRUE(waitUntil([this] {
        const int mine = open(port(), O_RDWR | O_NOCTTY);
        const bool taken = flock(mine, LOCK_EX | LOCK_NB) != 0;
        close(mine);
        return taken;
    }));
    expectCannotOpen(port(), "%1 is in use by another program.");
    other.kill();
    ASSERT_TRUE(other.waitForFinished());
    EXPECT_TRUE(connectTo());
}

TEST_F(Connecting, APortWithoutPermissionIsSaidOnce)
{
    constexpr uid_t nobody = 65534;
    const std::string slave = std::filesystem::canonical(port());
    ASSERT_EQ(chmod(slave.c_str(), 0), 0);
    const bool root = geteuid() == 0; // root may open what it likes
    ASSERT_EQ(seteuid(root ? nobody : geteuid()), 0);
    expectCannotOpen(port(), "There is no permission to use %1: ask for membership in the group that owns it, often "
                             "\"dialout\", and log in again.");
    ASSERT_EQ(seteuid(root ? 0 : geteuid()), 0);
    ASSERT_EQ(chmod(slave.c_str(), 0600), 0);
    EXPECT_TRUE(connectTo());
}

TEST_F(Connecting, RefusesAnUnknownModelAndTooNewFirmwareButTakesACompatibleOne)
{
    bus().set(5, 6020, 9000);
    expectRefused(MessageKind::Identity,
                  HasSubstr("Unsupported device model connected. Try upgrading Velbrin to latest version. Connected "
                            "device ID 9000"),
                  "Unsupported device connected, try upgrading Velbrin");
    bus().set(5, 6020, 11000);
    bus().set(5, 6010, 1079);
    bus().set(5, 6011, 1079);
    newSession();
    expectRefused(MessageKind::Identity, HasSubstr("Device firmware version too new"));
    bus().set(5, 6011, 1078);
    EXPECT_TRUE(connectTo());
}

TEST_F(Connecting, RestartsATooOldKetaIntoUpgradeModeAndCanConnectThen)
{
    makeTooOld();
    expectRefused(MessageKind::Identity, AllOf(HasSubstr("Device now has been restarted in firmware upgrade mode"),
                                               HasSubstr("the olders supported TC FW version is 1078.")));
    // The pause is shortened here; the drive's own restart is not.
    ASSERT_TRUE(waitUntil([this] { return bus().read(5, 2) == 0; }));
    EXPECT_EQ(payloads().back(), wire("822a 00000040"));
    EXPECT_TRUE(connectTo(255));
}

TEST_F(Connecting, EveryProfileIsAccepted)
{
    for (const char *profile : {"keta", "keta-pro", "keta-hc", "torva"}) {
        startBus({{{profile, 5}}});
        newSession();
        EXPECT_TRUE(connectTo()) << profile;
        EXPECT_TRUE(log().errors.isEmpty()) << profile;
    }
}

TEST_F(Connecting, ADriveThatIsTooOldIsOnlySaidToBeRestartedWhenItConfirmedThat)
{
    makeTooOld();
    session().setReplyTimeout(shortTimeoutMs);
    // Both readings of the identity, four requests each, come through.
    bus().setFault({sim::LineFault::Deaf, sim::LineFault::anyByte, 8, 1});
    expectRefused(MessageKind::Identity, AllOf(HasSubstr("Device could not be restarted in firmware upgrade mode"),
                                               Not(HasSubstr("now has been restarted"))));
    EXPECT_EQ(received(wire("822a 00000040")), 1) << "once only";
    EXPECT_NE(bus().read(5, 2), 0);
}

TEST_F(Connecting, OneOddReadingOfTheVersionsRestartsNothing)
{
    makeTooOld();
    bus().setTurnAround(std::chrono::milliseconds(30));
    session().connectDevice(port(), DriveAddress);
    ASSERT_TRUE(waitForRequests(5)); // the first reading was four
    bus().set(5, 6014, 1078);
    ASSERT_TRUE(waitUntil([this] { return !log().statuses.isEmpty(); }));
    EXPECT_TRUE(log().statuses.last().connected);
    EXPECT_TRUE(log().errors.isEmpty());
    EXPECT_THAT(payloads(), Each(Not(StartsWith("822a")))) << "register 554";
}

TEST_F(Connecting, ADamagedReplyIsAskedForOnceMoreAndADoubledOneAnswersNothingElse)
{
    session().setReplyTimeout(shortTimeoutMs);
    for (Fault::Kind kind : {Fault::Twice, Fault::Flip, Fault::Double, Fault::Missing, Fault::Late}) {
        for (int exchange = 0; exchange < 6; ++exchange) {
            bus().clearFaults();
            ASSERT_TRUE(runToEnd(Connection::TaskDisconnect));
            bus().clearReceived();
            spoil(kind, exchange);
            const LineMeter before = session().lineMeter();
            EXPECT_TRUE(connectTo()) << kind << " at " << exchange;
            ASSERT_TRUE(runToEnd(Connection::TaskUpdateStatus)); // finds what the last one left behind
            if (kind == Fault::Twice)
                EXPECT_EQ(session().lineMeter().strays, before.strays + 1) << exchange;
            else
                EXPECT_GT(session().lineMeter().errors, before.errors) << kind << " at " << exchange;
            for (const std::string &payload : payloads()) {
                const bool isRead = payload.rfind(wire("800a 400000 8009"), 0) == 0;
                EXPECT_TRUE(isRead || payload == wire("800f 00000000") || payload == wire("800d 00000000")) << payload;
            }
            EXPECT_EQ(session().deviceType(), 11000);
            EXPECT_FALSE(session().isInFirmwareUpgradeMode());
        }
    }
    EXPECT_TRUE(log().errors.isEmpty()) << qPrintable(log().errors.join("\n"));
}

TEST_F(Connecting, WhoDoesNotAnswerAndWhoAnswersDamagedAreToldApart)
{
    const std::pair<Fault::Kind, const char *> cases[] = {
        {Fault::Missing, "The port is open, but nobody answered at address 5"},
        {Fault::Flip, "Something answered at address 5, but damaged"},
    };
    for (const auto &[kind, text] : cases) {
        newSession();
        session().setReplyTimeout(shortTimeoutMs);
        setFault(kind);
        expectRefused(MessageKind::ConnectFailed, AllOf(StartsWith("Communication error flags:"), HasSubstr(text)));
    }
}
