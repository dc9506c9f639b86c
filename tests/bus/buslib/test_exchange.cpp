#include "busfixture.h"
#include "packet.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

// The line hands over in order, so a reply may stand ready before its request: no second thread, no waiting.
class Exchange : public OnALine
{
protected:
    void SetUp() override { open(); }
};

const Bytes readOf6012 = {0x24, 0x0A, 0x03, 0x80, 0x0A, 0x40, 0x00, 0x00, 0x80, 0x09, 0x40, 0x17, 0x7C, 0x16, 0x47};
const Bytes replyWith6020 = {0x25, 0x10, 0x03, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
                             0x00, 0x00, 0x00, 0x07, 0x00, 0x00, 0x17, 0x84, 0x09, 0x6D};

} // namespace

TEST_F(Exchange, ReadsAParameterInOnePacketEachWay)
{
    line.write(replyWith6020);
    long value = 0;
    EXPECT_EQ(zbRead1Parameter(bus, 3, 6012, &value), ZB_OK);
    EXPECT_EQ(value, 6020);
    EXPECT_EQ(line.read(readOf6012.size()), readOf6012);
    EXPECT_TRUE(line.isQuiet());
}

TEST_F(Exchange, ReadsTwoAndThreeParametersInOnePacket)
{
    long a = 0, b = 0, c = 0;
    const auto values = [&] { return std::vector<long>{a, b, c}; };
    line.write(withChecksum({0x25, 8, 3, 0xC1, 0xC1, 0xC1, 0xC5, 0xC1, 0xC1, 0xC1, 0xC6}));
    EXPECT_EQ(zbRead2Parameters(bus, 3, 100, &a, 101, &b), ZB_OK);
    EXPECT_THAT(values(), ElementsAre(5, 6, 0));
    EXPECT_EQ(line.read(25)[1], 20); // payload size: two reads
    line.write(withChecksum({0x25, 12, 3, 0xC1, 0xC1, 0xC1, 0xC7, 0xC1, 0xC1, 0xC1, 0xC8, 0xC1, 0xC1, 0xC1, 0xC9}));
    EXPECT_EQ(zbRead3Parameters(bus, 3, 100, &a, 101, &b, 102, &c), ZB_OK);
    EXPECT_THAT(values(), ElementsAre(7, 8, 9));
    EXPECT_EQ(line.read(35)[1], 30);
}

TEST_F(Exchange, WritesAParameter)
{
    line.write(withChecksum({0x25, 2, 3, 0xC1, 0xC1}));
    EXPECT_EQ(zbSetParameter(bus, 3, 404, -1), ZB_OK);
    EXPECT_EQ(line.read(11), (Bytes{0x24, 0x06, 0x03, 0x81, 0x94, 0x3F, 0xFF, 0xFF, 0xFF, 0x0A, 0x73}));
}

TEST_F(Exchange, UploadsForTimedExecutionUnderItsOwnId)
{
    line.write({0x35, 0x00, 0x05, 0xD0, 0x0D});
    ASSERT_EQ(zbAppendZBCommandToQueue(bus, ZB_QUEUE_ADDRESS, 5), ZB_OK);
    EXPECT_EQ(zbUploadCommandQueueToDeviceBuffer(bus, 5), ZB_OK);
    EXPECT_EQ(line.read(7), (Bytes{0x34, 0x02, 0x05, 0x80, 0x05, 0x01, 0xBE}));
    int count = -1;
    EXPECT_EQ(zbBytesReceived(bus, &count), ZB_OK);
    EXPECT_EQ(count, 0);
}

TEST_F(Exchange, CarriesAFullPayloadBothWays)
{
    Bytes reply = {0x25, 120, 3};
    for (int i = 0; i < 30; ++i)
        reply.insert(reply.end(), {0x00, 0x00, 0x01, static_cast<std::uint8_t>(i)});
    line.write(withChecksum(reply));
    for (int i = 0; i < 12; ++i)
        ASSERT_EQ(zbAppendGetParamCommandToQueue(bus, 100), ZB_OK);
    EXPECT_EQ(zbExecuteCommandQueue(bus, 3), ZB_OK);
    EXPECT_EQ(line.read(125).size(), 125u);
    for (int i = 0; i < 30; ++i) {
        long value = 0;
        ASSERT_EQ(zbGetQueuedZBCommandReturnValue(bus, &value), ZB_OK);
        ASSERT_EQ(value, 256 + i);
    }
    EXPECT_EQ(zbGetQueuedZBCommandReturnValue(bus, nullptr), ZB_ERR_LENGTH);
}

TEST_F(Exchange, APacketThatDoesNotFitTheTransmitBufferIsDroppedWhole)
{
    const Bytes payload(124, 0);
    EXPECT_EQ(zbSendZBCMD(bus, ZBCMD_INSTANT_CMD, 3, 124, payload.data()), ZB_ERR_BUS);
    EXPECT_TRUE(line.isQuiet());
    EXPECT_EQ(zbSendZBCMD(bus, ZBCMD_GET_CLOCK, 3, 0, nullptr), ZB_OK);
    EXPECT_EQ(line.read(4), (Bytes{0x50, 0x03, 0x7C, 0x01}));
}

TEST_F(Exchange, AsksForTheBufferClockAndTellsItInDebugLinesByPacketAndByByte)
{
    const std::pair<int, const char *> cases[] = {
        {1, ""},
        {2, "COM1: > ZBCMD_GET_CLOCK (id=80, addr=3, payload=0)\nCOM1: < ZBCMD_GET_CLOCK_RET (id=83, addr=3, "
            "payload=2)\n"},
        {3, "COM1: > ZBCMD_GET_CLOCK (id=80, addr=3, payload=0)\n"
            "COM1: ID COM1:   sent byte 50\nCOM1: ADDR COM1:   sent byte 03\n"
            "COM1: CRC COM1:   sent byte 7c\nCOM1: CRC COM1:   sent byte 01\n"
            "COM1:   Reading reply packet\n"
            "COM1:   got byte 53 \nCOM1:   got byte 03 \nCOM1:   got byte 34 \n"
            "COM1:   got byte 12 \nCOM1:   got byte 77 \nCOM1:   got byte 89 \n"
            "COM1: < ZBCMD_GET_CLOCK_RET (id=83, addr=3, payload=2)\n"},
    };
    for (const auto &[threshold, expected] : cases) {
        char *text = nullptr;
        std::size_t size = 0;
        std::FILE *stream = open_memstream(&text, &size);
        zbSetDebugOutput(threshold, stream);
        line.write({0x53, 0x03, 0x34, 0x12, 0x77, 0x89});
        std::uint16_t clock = 0;
        EXPECT_EQ(zbGetBufferClock(bus, 3, &clock), ZB_OK);
        EXPECT_EQ(clock, 0x1234);
        EXPECT_EQ(line.read(4), (Bytes{0x50, 0x03, 0x7C, 0x01}));
        zbSetDebugOutput(4, nullptr);
        std::fclose(stream);
        EXPECT_STREQ(text, expected);
        std::free(text);
    }
}
