#include "openrecord.h"

#include <gmock/gmock.h>

#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

class Queue : public OpenRecord
{
protected:
    Bytes queued() { return Bytes(bus().packetBuffer, bus().packetBuffer + bus().queueWriteLength); }

    long next(ZbStatus expected = ZB_OK)
    {
        long value = 12345;
        EXPECT_EQ(zbGetQueuedZBCommandReturnValue(handle, &value), expected);
        return value;
    }
};

} // namespace

TEST_F(Queue, EncodesItemsBigEndianWithTheirLengthInTheTopBits)
{
    const std::tuple<int, long, Bytes> items[] = {
        {ZB_QUEUE_ADDRESS, 10, {0x80, 0x0A}},
        {ZB_QUEUE_ADDRESS, 0x177C, {0x97, 0x7C}},
        {ZB_QUEUE_ADDRESS, 0x4005, {0x80, 0x05}}, // bits above the field are lost
        {ZB_QUEUE_VALUE24, 0, {0x40, 0x00, 0x00}},
        {ZB_QUEUE_VALUE24, 0x8177C, {0x48, 0x17, 0x7C}},
        {ZB_QUEUE_VALUE24, -1, {0x7F, 0xFF, 0xFF}},
        {ZB_QUEUE_VALUE32, 0x12345678, {0x12, 0x34, 0x56, 0x78}},
        {ZB_QUEUE_VALUE32, -1, {0x3F, 0xFF, 0xFF, 0xFF}},
        {ZB_QUEUE_VALUE32, -536870912, {0x20, 0x00, 0x00, 0x00}}, // the lowest of 30 bits
    };
    for (const auto &[kind, value, bytes] : items) {
        ASSERT_EQ(zbResetZB485variables(handle), ZB_OK);
        EXPECT_EQ(zbAppendZBCommandToQueue(handle, kind, value), ZB_OK);
        EXPECT_EQ(queued(), bytes) << kind << ", " << value;
    }
}

TEST_F(Queue, EncodesAReadInTenBytesAndAWriteInSix)
{
    EXPECT_EQ(zbAppendGetParamCommandToQueue(handle, 6012), ZB_OK);
    EXPECT_EQ(zbAppendSetParamCommandToQueue(handle, 404, -1), ZB_OK);
    // The maximum of a parameter is asked for with bit 15 of its address, which makes the address negative.
    EXPECT_EQ(zbAppendGetParamCommandToQueue(handle, static_cast<std::int16_t>(405 + 0x8000)), ZB_OK);
    EXPECT_EQ(queued(), (Bytes{0x80, 0x0A, 0x40, 0x00, 0x00, 0x80, 0x09, 0x40, 0x17, 0x7C, //
                               0x81, 0x94, 0x3F, 0xFF, 0xFF, 0xFF,                         //
                               0x80, 0x0A, 0x40, 0x00, 0x00, 0x80, 0x09, 0x7F, 0x81, 0x95}));
}

TEST_F(Queue, TakesItemsUpToExactlyOneHundredTwentyBytes)
{
    bus().queueWriteLength = 116;
    EXPECT_EQ(zbAppendZBCommandToQueue(handle, ZB_QUEUE_VALUE32, 1), ZB_OK);
    EXPECT_EQ(bus().queueWriteLength, 120);
    zbResetZB485variables(handle);

    bus().queueWriteLength = 117;
    EXPECT_EQ(zbAppendZBCommandToQueue(handle, ZB_QUEUE_VALUE32, 1), ZB_ERR_LENGTH);
    EXPECT_EQ(zbAppendZBCommandToQueue(handle, ZB_QUEUE_ADDRESS, 1), ZB_OK); // shorter items still fit
    EXPECT_EQ(zbAppendZBCommandToQueue(handle, ZB_QUEUE_ADDRESS, 1), ZB_ERR_LENGTH);
    EXPECT_EQ(bus().queueWriteLength, 119);
    EXPECT_EQ(getCumulativeStatus(handle), ZB_OK | ZB_ERR_LENGTH);
}

TEST_F(Queue, RefusesAnUnknownItemKind)
{
    for (int kind : {-1, 3})
        EXPECT_EQ(zbAppendZBCommandToQueue(handle, kind, 0), ZB_ERR_PARAMETER);
    EXPECT_EQ(bus().queueWriteLength, 0);
}

TEST_F(Queue, ThatOverflowedExchangesNothingAndReportsSuccessOnceAndAFailedSendKeepsIt)
{
    received({0x80, 0x07});
    bus().queueWriteLength = 118;
    ASSERT_EQ(zbAppendZBCommandToQueue(handle, ZB_QUEUE_VALUE32, 1), ZB_ERR_LENGTH);
    // There is no port behind this handle: an exchange would fail.
    EXPECT_EQ(zbExecuteCommandQueue(handle, 3), ZB_OK);
    EXPECT_EQ(bus().queueWriteLength, 0);
    EXPECT_EQ(next(), 7); // the previous reply is still there
    resetCumulativeStatus(handle);
    ASSERT_EQ(zbAppendGetParamCommandToQueue(handle, 404), ZB_OK);
    EXPECT_EQ(zbExecuteCommandQueue(handle, 3), ZB_ERR_BUS) << "the overflow counts once";
    EXPECT_EQ(bus().queueWriteLength, 10) << "what could not be sent stays";
    EXPECT_EQ(getCumulativeStatus(handle), ZB_OK | ZB_ERR_BUS);
}

TEST_F(Queue, DecodesReturnValuesOfEveryLengthWithTheirSign)
{
    received({0xFF, 0xC1, 0xDF, 0xE0,                         // 6 bits
              0x80, 0x05, 0x9F, 0xFF, 0xA0, 0x00, 0xBF, 0xFF, // 14 bits
              0x40, 0x00, 0x07, 0x5F, 0xFF, 0xFF, 0x60, 0x00, 0x00, 0x7F, 0xFF, 0xFE, 0x00, 0x00,
              0x00, 0x09, 0x1F, 0xFF, 0xFF, 0xFF, 0x20, 0x00, 0x00, 0x00, 0x3F, 0xFF, 0xFF, 0xFD});
    for (long expected : {-1L, 1L, 31L, -32L,           //
                          5L, 8191L, -8192L, -1L,       //
                          7L, 2097151L, -2097152L, -2L, //
                          9L, 536870911L, -536870912L, -3L})
        EXPECT_EQ(next(), expected);
    EXPECT_EQ(next(ZB_ERR_LENGTH), 0);
}

TEST_F(Queue, CountsTheBytesThatAreNotDecodedYet)
{
    int count = 0;
    received({0x80, 0x01, 0x80, 0x02, 0x80, 0x03});
    next();
    next();
    EXPECT_EQ(zbBytesReceived(handle, &count), ZB_OK);
    EXPECT_EQ(count, 2);
    received({0x3F}); // an item that begins on the last byte is decoded whole
    next();
    EXPECT_EQ(zbBytesReceived(handle, &count), ZB_OK);
    EXPECT_EQ(count, -3);
    EXPECT_EQ(zbBytesReceived(1, &count), ZB_ERR_NODEVICE);
    EXPECT_EQ(count, 0);
}

TEST_F(Queue, DecodesAnItemThatBeginsOnTheLastByteOfTheBuffer)
{
    std::fill(bus().packetBuffer, bus().packetBuffer + 120, 0xC0);
    bus().packetBuffer[119] = 0x3F;
    bus().expectedPayloadSize = 120;
    for (int i = 0; i < 119; ++i)
        ASSERT_EQ(next(), 0);
    EXPECT_EQ(next(), -0x1000000); // 0x3F000000: the bytes behind the buffer are zero
    EXPECT_EQ(next(ZB_ERR_LENGTH), 0);
}

TEST_F(Queue, ParameterReadersKeepTheLastValueOfTheirItems)
{
    received({0xC1, 0xC2, 0xC3, 0x80, 0x63, 0xC4, 0x80, 0x2A, 0xC5});
    long value = -1;
    EXPECT_EQ(zbGetQueuedGetParamReturnValue(handle, &value), ZB_OK);
    EXPECT_EQ(value, 99);
    EXPECT_EQ(zbGetQueuedSetParamReturnValue(handle, &value), ZB_OK);
    EXPECT_EQ(value, 42);
    EXPECT_EQ(zbGetQueuedSetParamReturnValue(handle, &value), ZB_OK | ZB_ERR_LENGTH); // one value short
    EXPECT_EQ(value, 0);
}

TEST_F(Queue, ReaderNamesBusFourAndTakesItsOwnHandleAsVerbosity)
{
    char *text = nullptr;
    std::size_t size = 0;
    std::FILE *stream = open_memstream(&text, &size);
    zbSetDebugOutput(1, stream);

    received({0xC1});
    next(); // bus 4 is closed: no line
    open(4);
    received({0xFF, 0x80, 0x05, 0x7F, 0xFF, 0xFF, 0x00, 0x00, 0x00, 0x09});
    for (int i = 0; i < 4; ++i)
        next();
    next(ZB_ERR_LENGTH);
    open(2);
    busRecord(2)->expectedPayloadSize = 2;
    zbGetQueuedZBCommandReturnValue(2, nullptr); // handle 2 is above the threshold of 1

    std::fclose(stream);
    EXPECT_STREQ(text, "COM4: RET_OTHER: -1\nCOM4: RET16B: 5\nCOM4: RET24B: -1\nCOM4: RET32B: 9\n"
                       "COM4: Packet receive error, return data coudn't be parsed\n");
    std::free(text);
}
