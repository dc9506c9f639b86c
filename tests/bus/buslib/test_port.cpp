#include "busdevice.h"
#include "busfixture.h"
#include "serialport.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <fstream>
#include <memory>
#include <termios.h>
#include <unistd.h>

using Port = OnALine;

TEST_F(Port, IsRawAt460800BaudWithItsTimeoutInTenths)
{
    const std::pair<std::uint16_t, int> cases[] = {{1000, 10}, {150, 1}, {50, 0}, {5000, 50}, {0, 0}};
    for (const auto &[timeout, vtime] : cases) {
        open(timeout);
        termios settings = {};
        ASSERT_EQ(tcgetattr(line.master(), &settings), 0); // on a pseudo terminal both ends see the port's settings
        EXPECT_EQ(settings.c_cc[VTIME], vtime);
        EXPECT_EQ(settings.c_cc[VMIN], 0);
        EXPECT_EQ(settings.c_iflag, static_cast<tcflag_t>(IGNPAR));
        EXPECT_EQ(settings.c_oflag, 0u);
        EXPECT_EQ(settings.c_lflag, 0u);
        constexpr tcflag_t framing = CSIZE | CSTOPB | CREAD | PARENB | PARODD | HUPCL | CLOCAL | CRTSCTS;
        EXPECT_EQ(settings.c_cflag & framing, static_cast<tcflag_t>(CS8 | CREAD | CLOCAL));
        EXPECT_EQ(cfgetospeed(&settings), static_cast<speed_t>(B460800));
        EXPECT_EQ(cfgetispeed(&settings), static_cast<speed_t>(B460800));
        EXPECT_EQ(zbCloseBus(bus), ZB_ERR_NODEVICE);
        EXPECT_EQ(zbIsHandleOpen(bus), 0);
    }
}

TEST_F(Port, TimeoutIsLimitedAndAnUnknownRateRefused)
{
    EXPECT_EQ(zbSetTimeout(5000), ZB_OK);
    EXPECT_EQ(zbSetTimeout(5001), ZB_ERR_PARAMETER);
    EXPECT_EQ(readTimeout(), 5000);
    EXPECT_EQ(zbGetVersion(), 0x20001);
    testing::internal::CaptureStdout();
    EXPECT_EQ(OpenComport("COM1", 12345), 1);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "invalid baudrate\n");
}

TEST_F(Port, RefusesOtherNamesWithoutATraceAndMissingOrTakenPortsWithAReason)
{
    open();
    std::ofstream("COM_file") << "not a terminal";
    const std::tuple<const char *, int, std::string> rows[] = {
        {"/dev/serial/by-id/adapter", EINVAL, ""},
        {"com1", EINVAL, ""},
        {"", EINVAL, ""},
        {"ttyUSB0", EINVAL, ""},
        {"/dev/ttyVelbrinTest", ENOENT, "unable to open comport "},
        {"COM1", EBUSY, "unable to open comport "},
        {"COM_file", ENOTTY, "unable to adjust portsettings "},
    };
    for (const auto &[name, error, begin] : rows) {
        testing::internal::CaptureStderr();
        EXPECT_EQ(zbOpenBus(name), -1) << name;
        EXPECT_EQ(errno, error) << name;
        const std::string trace = testing::internal::GetCapturedStderr();
        EXPECT_EQ(trace.substr(0, begin.empty() ? trace.size() : begin.size()), begin) << name;
    }
    EXPECT_EQ(zbOpenBus(nullptr), -1);
    std::filesystem::remove("COM_file");
    zbCloseBus(bus);
    open(); // none of this used up a handle
}

TEST_F(Port, CanBeOpenedAgainAlthoughAProgramThatIsBeingStartedStillHasIt)
{
    const int port = OpenComport("COM1", 460800);
    ASSERT_GE(port, 0);
    const int inherited = dup(port); // as between fork and exec
    EXPECT_EQ(CloseComport(port), 0);
    const int again = OpenComport("COM1", 460800);
    EXPECT_GE(again, 0);
    CloseComport(again);
    close(inherited);
}

TEST_F(Port, TheEleventhBusIsRefusedAndTheLowestFreeHandleUsedAgain)
{
    std::vector<std::unique_ptr<RawLine>> lines;
    for (int i = 0; i < 11; ++i)
        lines.push_back(std::make_unique<RawLine>("COM1" + std::to_string(i)));
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(zbOpenBus(("COM1" + std::to_string(i)).c_str()), i);
    EXPECT_EQ(zbOpenBus("COM110"), -1);
    EXPECT_EQ(errno, EMFILE);
    zbCloseBus(7);
    zbCloseBus(3);
    EXPECT_EQ(zbOpenBus("COM110"), 3);
    for (int i = 0; i < 10; ++i)
        zbCloseBus(i);
}

TEST_F(Port, DropsWhatIsLeftOverFromBefore)
{
    open(); // leaves the line raw, or it would not keep these bytes as they are
    zbCloseBus(bus);
    line.write(withChecksum({0x53, 0x03, 0x34, 0x12}));
    open(shortWait);
    std::uint16_t clock = 0;
    EXPECT_EQ(zbGetBufferClock(bus, 3, &clock), ZB_ERR_COMMUNICATION);
    // The same between two exchanges, where a late reply must not answer the next request.
    line.write(withChecksum({0x53, 0x03, 0x34, 0x12}));
    EXPECT_EQ(zbDiscardInput(bus), ZB_OK);
    EXPECT_EQ(zbGetBufferClock(bus, 3, &clock), ZB_ERR_COMMUNICATION);
}

TEST_F(Port, BytesReadAheadDoNotOutliveTheirPort)
{
    open();
    const int device = 0;
    std::uint8_t byte = 0;
    line.write({0x11, 0x22, 0x33});
    ASSERT_EQ(zbBDRead(device, &byte), 1);
    EXPECT_EQ(byte, 0x11);
    zbCloseBus(bus);
    EXPECT_EQ(zbBDRead(device, &byte), 0);
    open();
    EXPECT_EQ(zbBDRead(device, &byte), 0);
}

TEST_F(Port, TransmitBufferTakes128BytesAndLeavesInOneWrite)
{
    open();
    const int device = 0;
    for (int i = 0; i < 128; ++i)
        ASSERT_EQ(zbBDWrite(device, static_cast<std::uint8_t>(i)), 1);
    EXPECT_EQ(zbBDWrite(device, 0), 0);
    EXPECT_TRUE(line.isQuiet());
    EXPECT_EQ(zbBDTransmit(device), 1);
    EXPECT_EQ(line.read(128).size(), 128u);
    EXPECT_EQ(zbBDWrite(device, 0), 1); // empty again
    EXPECT_EQ(zbBDTransmit(device), 1);
    for (int bad : {-1, 1, 10}) {
        EXPECT_EQ(zbBDWrite(bad, 0), 0);
        EXPECT_EQ(zbBDTransmit(bad), 0);
        EXPECT_EQ(zbBDClose(bad), 0);
        EXPECT_EQ(zbIsBDHandleOpen(bad), 0);
    }
}
