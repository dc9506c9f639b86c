#include "busfixture.h"

#include <atomic>
#include <thread>

namespace {

class BadLine : public OnALine
{
protected:
    ZbStatus readOnce()
    {
        long ignored = 0;
        ZbStatus status = zbAppendGetParamCommandToQueue(bus, 6012);
        status |= zbExecuteCommandQueue(bus, 3);
        status |= zbGetQueuedGetParamReturnValue(bus, &ignored);
        line.read(requestSize);
        return status;
    }

    // The request was sent whole and the queue is empty, so that the next exchange is a clean one.
    void expectGoodExchange(const std::string &after)
    {
        line.write(reply);
        EXPECT_EQ(readOnce(), ZB_OK) << "after " << after;
    }

    static constexpr std::size_t requestSize = 15;
    static constexpr ZbStatus failedExchange = ZB_OK | ZB_ERR_COMMUNICATION | ZB_ERR_LENGTH;
    const Bytes reply = {0x25, 0x10, 0x03, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
                         0x00, 0x00, 0x00, 0x07, 0x00, 0x00, 0x17, 0x84, 0x09, 0x6D};
};

// Writes to the line until it is told to stop or the line is gone.
class Babbler
{
public:
    Babbler(int line, Bytes noise, int pauseMs) : m_line(line), m_noise(std::move(noise)), m_pause(pauseMs)
    {
        fcntl(line, F_SETFL, fcntl(line, F_GETFL) | O_NONBLOCK); // a full line must not keep it from stopping
        m_thread = std::thread([this] { babble(); });
    }
    ~Babbler()
    {
        m_stop = true;
        m_thread.join();
    }

private:
    void babble()
    {
        while (!m_stop) {
            pollfd request = {m_line, POLLOUT, 0};
            if (poll(&request, 1, 10) > 0 && write(m_line, m_noise.data(), m_noise.size()) < 0 && errno != EAGAIN)
                return;
            std::this_thread::sleep_for(m_pause);
        }
    }

    int m_line;
    Bytes m_noise;
    std::chrono::milliseconds m_pause;
    std::atomic<bool> m_stop{false};
    std::thread m_thread;
};

} // namespace

TEST_F(BadLine, ReplyCutOrFlippedAtEveryByteOrTooLongFailsAndTheNextIsTaken)
{
    Bytes tooLong = {0x25, 121, 3};
    tooLong.resize(3 + 121, 0xC1);
    std::vector<Bytes> damaged = {withChecksum(tooLong)};
    for (std::size_t byte = 0; byte < reply.size(); ++byte) {
        damaged.emplace_back(reply.begin(), reply.begin() + static_cast<long>(byte));
        for (int mask : {0x01, 0x02, 0x04, 0x80, 0xFF}) {
            damaged.push_back(reply);
            damaged.back()[byte] ^= static_cast<std::uint8_t>(mask);
        }
    }
    open();
    for (const Bytes &bytes : damaged) {
        line.write(bytes);
        EXPECT_EQ(readOnce(), failedExchange) << testing::PrintToString(bytes);
        expectGoodExchange(testing::PrintToString(bytes));
    }
}

TEST_F(BadLine, SilenceEndsAfterOneTimeout)
{
    open(shortWait);
    const Stopwatch watch;
    EXPECT_EQ(readOnce(), failedExchange);
    EXPECT_GE(watch.elapsed(), 90);
    EXPECT_LT(watch.elapsed(), 1000);
    EXPECT_EQ(zbIsLineGone(bus), 0);
    expectGoodExchange("silence");
}

TEST_F(BadLine, FullSpeedNoiseEndsWithTheDrainsByteLimit)
{
    open(shortWait);
    const Babbler babbler(line.master(), Bytes(200, 0xFF), 0);
    const Stopwatch watch;
    zbAppendGetParamCommandToQueue(bus, 6012);
    EXPECT_EQ(zbExecuteCommandQueue(bus, 3), ZB_ERR_COMMUNICATION);
    EXPECT_LT(watch.elapsed(), 1900) << "the bytes end it, not the time";
    EXPECT_EQ(zbDiscardInput(bus), ZB_OK);
    EXPECT_LT(watch.elapsed(), 5000);
}

TEST_F(BadLine, TricklingNoiseEndsWithTheDrainsTimeLimit)
{
    open(longWait);
    const Babbler babbler(line.master(), {0xFF}, 20);
    const Stopwatch watch;
    zbAppendGetParamCommandToQueue(bus, 6012);
    EXPECT_EQ(zbExecuteCommandQueue(bus, 3), ZB_ERR_COMMUNICATION);
    EXPECT_GE(watch.elapsed(), 1900);
    EXPECT_LT(watch.elapsed(), 5000);
}

TEST_F(BadLine, AdapterPulledOutBeforeAnExchangeFailsAtOnceAndOpensAgain)
{
    open(longWait);
    EXPECT_EQ(zbIsLineGone(bus), 0);
    line.hangUp();
    const Stopwatch watch;
    zbAppendGetParamCommandToQueue(bus, 6012);
    EXPECT_EQ(zbExecuteCommandQueue(bus, 3), ZB_ERR_BUS);
    EXPECT_EQ(zbDiscardInput(bus), ZB_OK);
    EXPECT_NE(zbIsLineGone(bus), 0);
    EXPECT_LT(watch.elapsed(), 1000);

    zbCloseBus(bus);
    RawLine replugged("COM1");
    open();
    replugged.write(reply);
    long value = 0;
    EXPECT_EQ(zbRead1Parameter(bus, 3, 6012, &value), ZB_OK);
    EXPECT_EQ(value, 6020);
}

TEST_F(BadLine, AdapterPulledOutDuringAReplyFailsAtOnce)
{
    // In the middle of a good reply, and in the middle of draining a bad one.
    for (const Bytes &begun : {Bytes{0x25, 0x10, 0x03}, Bytes{0xFF, 0xFF}}) {
        RawLine other("COM2");
        zbSetTimeout(longWait);
        bus = zbOpenBus("COM2");
        ASSERT_EQ(bus, 0);
        zbResetZB485variables(bus);
        std::thread puller([&] {
            other.read(requestSize);
            other.write(begun);
            other.hangUp();
        });
        const Stopwatch watch;
        zbAppendGetParamCommandToQueue(bus, 6012);
        EXPECT_EQ(zbExecuteCommandQueue(bus, 3), ZB_ERR_COMMUNICATION);
        EXPECT_LT(watch.elapsed(), 2500);
        EXPECT_NE(zbIsLineGone(bus), 0);
        puller.join();
        zbCloseBus(bus);
    }
}

TEST_F(BadLine, RequestThatNobodyTakesFailsInsteadOfWaitingForEver)
{
    open();
    const Stopwatch watch;
    ZbStatus status = ZB_ERR_COMMUNICATION;
    for (int i = 0; i < 20000 && status == ZB_ERR_COMMUNICATION; ++i) {
        for (int item = 0; item < 12; ++item)
            zbAppendGetParamCommandToQueue(bus, 6012);
        status = zbExecuteCommandQueue(bus, 3);
    }
    EXPECT_EQ(status, ZB_ERR_BUS);
    EXPECT_LT(watch.elapsed(), 10000);
    // Half a request would go out in front of the next one: what the line holds is dropped, but for what has arrived.
    fcntl(line.master(), F_SETFL, fcntl(line.master(), F_GETFL) | O_NONBLOCK);
    Bytes waiting(100000);
    EXPECT_LE(read(line.master(), waiting.data(), waiting.size()), 4096);
    EXPECT_TRUE(line.isQuiet());
}

TEST_F(BadLine, AReplyThatTricklesInHasALimitOfItsOwn)
{
    open(shortWait); // none of its bytes comes later than that behind the one before
    zbSetTimeout(shortWait);
    std::thread trickle([this] {
        for (std::uint8_t byte : reply) {
            line.write({byte});
            std::this_thread::sleep_for(std::chrono::milliseconds(70));
        }
    });
    EXPECT_EQ(readOnce() & ZB_ERR_COMMUNICATION, ZB_ERR_COMMUNICATION) << "the whole reply takes 1.5 s";
    trickle.join();
    zbDiscardInput(bus);
    expectGoodExchange("trickle");
}

TEST_F(BadLine, WhatWasReadAheadIsDiscardedToo)
{
    open();
    Bytes twice = reply;
    twice.insert(twice.end(), reply.begin(), reply.end());
    line.write(twice);
    ASSERT_EQ(readOnce(), ZB_OK);
    int dropped = 0;
    EXPECT_EQ(zbDiscardInput(bus, &dropped), ZB_OK);
    EXPECT_EQ(dropped, 21);
    EXPECT_EQ(readOnce() & ZB_ERR_COMMUNICATION, ZB_ERR_COMMUNICATION) << "nothing is left to answer this";
}
