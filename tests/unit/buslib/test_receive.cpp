#include "openrecord.h"
#include "packet.h"

#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

// Four 2-byte return values from address 3.
const Bytes fourValues = {0x25, 0x08, 0x03, 0x80, 0x01, 0x80, 0x02, 0x80, 0x03, 0xBF, 0xFF, 0xB8, 0x06};

class Receive : public OpenRecord
{
protected:
    // Feeds bytes until one is refused or a reply is whole; returns the last status.
    ZbStatus feed(const Bytes &bytes)
    {
        ZbStatus status = ZB_OK;
        for (std::size_t i = 0; i < bytes.size() && status == ZB_OK && (i == 0 || !bus().packetComplete); ++i)
            status = zbParseReturnData(handle, bytes[i]);
        return status;
    }

    void expectInitialState()
    {
        EXPECT_EQ(bus().receiveState, 0u);
        EXPECT_EQ(bus().previousReceiveState, 0u);
        EXPECT_EQ(bus().expectedPayloadSize, -1);
        EXPECT_EQ(bus().payloadIndex, 0);
        EXPECT_EQ(bus().receivedCommandId, 0);
        EXPECT_EQ(bus().receivedAddress, 255);
        EXPECT_EQ(bus().runningChecksum, 0);
        EXPECT_EQ(bus().receivedChecksum, 0xFFFF);
        EXPECT_EQ(bus().queueOverflow, 0);
        EXPECT_EQ(bus().queueWriteLength, 0);
        EXPECT_EQ(bus().returnReadIndex, 0);
    }
};

} // namespace

TEST_F(Receive, WalksThroughTheStatesOfAVariableReply)
{
    const std::uint32_t stateAfter[] = {2, 1, 3, 3, 3, 3, 3, 3, 3, 3, 4, 5, 0};
    for (std::size_t i = 0; i < fourValues.size(); ++i) {
        const std::uint32_t before = bus().receiveState;
        ASSERT_EQ(zbParseReturnData(handle, fourValues[i]), ZB_OK) << "byte " << i;
        EXPECT_EQ(bus().receiveState, stateAfter[i]) << "byte " << i;
        EXPECT_EQ(bus().previousReceiveState, before) << "byte " << i;
        EXPECT_EQ(bus().packetComplete, i + 1 == fourValues.size()) << "byte " << i;
    }
    EXPECT_EQ(bus().receivedCommandId, 37);
    EXPECT_EQ(bus().receivedAddress, 3);
    EXPECT_EQ(bus().expectedPayloadSize, 8); // kept: it bounds the return values
    EXPECT_EQ(bus().payloadIndex, 0);
    EXPECT_EQ(getCumulativeStatus(handle), ZB_OK);
}

TEST_F(Receive, TakesFixedAndEmptyPayloads)
{
    const std::pair<Bytes, int> replies[] = {
        {{0x53, 0x03, 0x34, 0x12, 0x77, 0x89}, 2}, // two bytes, no size byte
        {{0x50, 0x03, 0x7C, 0x01}, 0},             // none
        {{0x25, 0x00, 0x03, 0x51, 0xCA}, 0},       // variable size of 0: straight from the address to the checksum
        {{0x53, 0x33, 0x34, 0x12, 0x77, 0x86}, 2}, // any address
    };
    for (const auto &[packet, payload] : replies) {
        EXPECT_EQ(feed(packet), ZB_OK);
        EXPECT_EQ(bus().packetComplete, 1);
        EXPECT_EQ(bus().expectedPayloadSize, payload);
    }
}

TEST_F(Receive, RefusesInvalidSizeBitsAtOnceAndForgetsTheQueue)
{
    ASSERT_EQ(zbAppendZBCommandToQueue(handle, ZB_QUEUE_VALUE32, 1), ZB_OK);
    EXPECT_EQ(zbParseReturnData(handle, 0x26), ZB_ERR_COMMUNICATION);
    EXPECT_EQ(bus().packetComplete, 1); // so that a receive loop ends
    expectInitialState();
    EXPECT_EQ(getCumulativeStatus(handle), ZB_OK | ZB_ERR_COMMUNICATION);
}

TEST_F(Receive, RefusesAReplyBeyondTheBufferAtItsOneHundredTwentyFirstByte)
{
    for (int size : {121, 255}) {
        ASSERT_EQ(feed({0x25, static_cast<std::uint8_t>(size), 0x03}), ZB_OK);
        for (int i = 0; i < 120; ++i)
            ASSERT_EQ(zbParseReturnData(handle, 0x00), ZB_OK) << "payload byte " << i;
        EXPECT_EQ(zbParseReturnData(handle, 0x00), ZB_ERR_COMMUNICATION);
        expectInitialState();
    }
}

TEST_F(Receive, RefusesAnyFlippedBitAndTakesTheNextReply)
{
    for (std::size_t byte = 0; byte < fourValues.size(); ++byte) {
        for (int bit = 0; bit < 8; ++bit) {
            Bytes damaged = fourValues;
            damaged[byte] ^= static_cast<std::uint8_t>(1 << bit);
            const bool isTaken = feed(damaged) == ZB_OK && bus().packetComplete;
            EXPECT_FALSE(isTaken) << "byte " << byte << " bit " << bit;
            zbReceiveErrorHandler(handle, false);
            ASSERT_EQ(feed(fourValues), ZB_OK) << "byte " << byte << " bit " << bit;
            ASSERT_EQ(bus().packetComplete, 1);
        }
    }
}

TEST_F(Receive, OnAClosedHandleReportsNoDeviceOnly)
{
    for (ZbHandle closed : {-1, 1, 10}) {
        EXPECT_EQ(zbParseReturnData(closed, 0x25), ZB_ERR_NODEVICE);
        EXPECT_EQ(zbReceiveErrorHandler(closed, true), ZB_ERR_NODEVICE);
        EXPECT_EQ(zbReceiveReturnPacket(closed), ZB_ERR_NODEVICE);
        EXPECT_EQ(zbSendZBCMD(closed, ZBCMD_GET_CLOCK, 3, 0, nullptr), ZB_ERR_NODEVICE);
        EXPECT_EQ(zbDiscardInput(closed), ZB_ERR_NODEVICE);
        EXPECT_EQ(zbResetZB485variables(closed), ZB_ERR_NODEVICE);
        EXPECT_EQ(getCumulativeStatus(closed), ZB_ERR_NODEVICE);
        EXPECT_EQ(zbIsHandleOpen(closed) + zbIsLineGone(closed), 0);
        EXPECT_EQ(zbAppendZBCommandToQueue(closed, ZB_QUEUE_ADDRESS, 0), ZB_ERR_NODEVICE);
        EXPECT_EQ(zbExecuteCommandQueue(closed, 3), ZB_ERR_NODEVICE);
        EXPECT_EQ(zbGetQueuedZBCommandReturnValue(closed, nullptr), ZB_ERR_NODEVICE);
        EXPECT_EQ(zbSetParameter(closed, 3, 404, 0), ZB_ERR_NODEVICE);
        EXPECT_EQ(zbGetBufferClock(closed, 3, nullptr), ZB_ERR_NODEVICE);
        EXPECT_EQ(zbCloseBus(closed), ZB_ERR_NODEVICE);
    }
    EXPECT_EQ(getCumulativeStatus(handle), 0u);
}

TEST_F(Receive, ResettingTheVariablesLeavesTheBusOpenAndItsCumulativeStatus)
{
    feed({0x25, 0x08, 0x03, 0x80});
    EXPECT_EQ(zbAppendZBCommandToQueue(handle, 7, 0), ZB_ERR_PARAMETER);
    EXPECT_EQ(zbResetZB485variables(handle), ZB_OK);
    expectInitialState();
    EXPECT_EQ(bus().packetComplete, 0);
    EXPECT_EQ(zbIsHandleOpen(handle), 1);
    EXPECT_EQ(getCumulativeStatus(handle), ZB_OK | ZB_ERR_PARAMETER);
    EXPECT_EQ(resetCumulativeStatus(handle), ZB_OK);
    EXPECT_EQ(recordStatus(handle, ZB_ERR_LENGTH), ZB_ERR_LENGTH);
    EXPECT_EQ(getCumulativeStatus(handle), ZB_ERR_LENGTH);
}
