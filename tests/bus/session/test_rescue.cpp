// A drive that loses power half way through an upgrade, as one sees it from outside: velbrin-sim as a process of its
// own, killed and started again on the same state file.
#include "sessionfixture.h"

#include <QFile>
#include <QProcess>

using testing::HasSubstr;

namespace {

/// The session; the fixture's own bus stands idle.
class Rescue : public SessionFixture
{
protected:
    void SetUp() override
    {
        SessionFixture::SetUp();
        session().setPauseScale(0.001);
        QObject::connect(&session(), &Connection::firmwareUploadProgress, &log(), [this](int sent, int total) {
            m_sent = sent;
            m_total = total;
        });
    }
    void TearDown() override
    {
        kill();
        SessionFixture::TearDown();
    }
    /// Power on. The port's name comes when the drive answers.
    void start(const QStringList &more = {})
    {
        m_drive = std::make_unique<QProcess>();
        m_drive->start(VELBRIN_BINARY_DIR "/bin/velbrin-sim",
                       QStringList{"--drive", "keta", "--state", "keta.state", "--link", "COM2"} + more);
        ASSERT_TRUE(waitUntil([this] { return m_drive->canReadLine(); }))
            << qPrintable(m_drive->readAllStandardError());
    }
    /// Power off, in the middle of whatever it does.
    void kill()
    {
        if (!m_drive)
            return;
        m_drive->kill();
        m_drive->waitForFinished();
        m_drive.reset();
    }
    bool connectToDrive(int address)
    {
        const int before = log().statuses.size();
        session().connectDevice("COM2", address);
        return waitUntil([&] { return log().statuses.size() > before; }) && log().statuses.last().connected;
    }
    void flash()
    {
        log().upgrade.clear();
        session().setFirmwareFileName(QFileInfo("keta.tdf").absoluteFilePath(), false);
        session().command(Connection::TaskFlashFirmware);
    }
    bool waitForFinalMessage()
    {
        return waitUntil([this] { return !log().upgrade.isEmpty() && log().upgrade.last().done; });
    }
    QList<NodeType> scan()
    {
        log().nodes.clear();
        session().getListOfBusNodes("COM2");
        return waitUntil([this] { return !log().nodes.isEmpty(); }) ? log().nodes.first() : QList<NodeType>();
    }

    std::unique_ptr<QProcess> m_drive;
    int m_sent = 0, m_total = 0; ///< bytes of the running upload
};

} // namespace

TEST_F(Rescue, ADriveCutOffHalfWayIsFoundInUpgradeModeAndTakesASecondUpgrade)
{
    ASSERT_EQ(
        QProcess::execute(VELBRIN_BINARY_DIR "/bin/velbrin-sim", {"--drive", "keta", "--write-firmware", "keta.tdf"}),
        0);
    start({"--upgrade-mode", "--turn-around", "10000"}); // slow enough to be cut off in the middle
    ASSERT_TRUE(connectToDrive(255));
    flash();
    ASSERT_TRUE(waitUntil([this] { return m_sent > 0 && 2 * m_sent >= m_total; }));
    kill();
    ASSERT_TRUE(waitForFinalMessage());
    EXPECT_LT(m_sent, m_total) << "it was too late to cut anything off";
    EXPECT_TRUE(log().upgrade.last().failed);
    session().command(Connection::TaskDisconnect);
    ASSERT_TRUE(waitForDisconnect());

    start();
    const QList<NodeType> nodes = scan();
    ASSERT_EQ(nodes.size(), 1);
    EXPECT_EQ(nodes.first().address, 255);
    EXPECT_TRUE(nodes.first().firmwareUpgradeMode);
    EXPECT_EQ(nodes.first().deviceType, 11000);

    log().upgrade.clear();
    ASSERT_TRUE(connectToDrive(255));
    ASSERT_TRUE(waitUntil([this] { return log().upgrade.size() == 2; }));
    EXPECT_THAT(log().upgrade.first().text.toStdString(), HasSubstr("Connected to device in firmware upgrade mode"));
    EXPECT_THAT(log().upgrade.last().text.toStdString(),
                HasSubstr("(120 hex = chip firmware memory checksum mismatch)"));
    flash();
    ASSERT_TRUE(waitForFinalMessage());
    EXPECT_FALSE(log().upgrade.last().failed) << qPrintable(log().upgrade.last().text);
    ASSERT_TRUE(waitForDisconnect());

    kill(); // power off and on
    start();
    EXPECT_TRUE(connectToDrive(5)) << "back to normal, at its own address";
    EXPECT_FALSE(session().isInFirmwareUpgradeMode());
}
