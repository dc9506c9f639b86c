// Items, return values and packets: the drive's own reading of the line.
#include "drivebench.h"

#include "drivepacket.h"

#include <cmath>
#include <gmock/gmock.h>
#include <random>

using sim::Bytes;
using testing::ElementsAre;

namespace {

class Items : public DriveBench
{
};

// Register 202 (KVP) is 360 = 0x168 on a fresh Keta.
constexpr std::uint8_t SelectorHigh = 0x80, SelectorLow = 0x09; // select register 9
constexpr std::uint8_t LengthHigh = 0x80, LengthLow = 0x0A;     // select register 10

} // namespace

TEST_F(Items, EveryItemYieldsOneReturnValueOfTheSelectedLength)
{
    // At power-on the selector stands on register 0 and the length control on four bytes.
    EXPECT_EQ(ask({SelectorHigh, SelectorLow, 0x40, 0x00, 0xCA}), (Bytes{0, 0, 0, 0, 0x00, 0x00, 0x01, 0x68}));
    EXPECT_EQ(ask({LengthHigh, LengthLow, 0x40, 0x00, 0x01}), (Bytes{0x00, 0x00, 0x01, 0x68, 0x40, 0x01, 0x68}));
    EXPECT_EQ(ask({0x40, 0x00, 0x02}), (Bytes{0x81, 0x68}));
    EXPECT_EQ(ask({0x40, 0x00, 0x03}), (Bytes{0xC1}));
    EXPECT_EQ(ask({0x80, 0x00, 0x40, 0x00, 0x01}), (Bytes{0xC1, 0xC2})) << "register 0 refuses writes";
}

TEST_F(Items, BitsThatDoNotFitAreCutOff)
{
    drive.set(sim::reg::HighLimit, -500000000); // 0xE2329B00
    ask({SelectorHigh, SelectorLow, 0x40, 0x03, 0x43, LengthHigh, LengthLow});
    EXPECT_EQ(ask({0x40, 0x00, 0x00}), (Bytes{0x22, 0x32, 0x9B, 0x00}));
    EXPECT_EQ(ask({0x40, 0x00, 0x01}), (Bytes{0x72, 0x9B, 0x00}));
    EXPECT_EQ(ask({0x40, 0x00, 0x02}), (Bytes{0x9B, 0x00}));
}

TEST_F(Items, WalkingTheSelectorReadsOneRegisterAnItem)
{
    // 27 registers in one exchange fill the reply to the last byte.
    Bytes request{LengthHigh, LengthLow, 0x40, 0x00, 0x00, SelectorHigh, SelectorLow};
    for (int i = 0; i < 27; ++i)
        request.insert(request.end(), {0x40, 0x00, std::uint8_t(i % 2 ? 0xC8 : 0xC9)}); // 200 (KVI), 201 (KPP)
    const Bytes reply = ask(request);
    ASSERT_EQ(reply.size(), 120u);
    EXPECT_EQ(Bytes(reply.begin() + 12, reply.begin() + 20), (Bytes{0, 0, 0, 0x78, 0, 0, 0x01, 0x68}));
}

TEST_F(Items, FlagsInTheSelectorReturnLimits)
{
    ask({SelectorHigh, SelectorLow});
    // MMC, register 411 = 0x19B: 0 to 35000; its minimum as the master sends it, and its maximum as a negative 22 bits.
    EXPECT_EQ(ask({0x40, 0x41, 0x9B}), (Bytes{0x00, 0x00, 0x00, 0x00}));
    EXPECT_EQ(ask({0x40, 0x81, 0x9B}), (Bytes{0x00, 0x00, 0x88, 0xB8}));
    EXPECT_EQ(ask({0x7F, 0x81, 0x9B}), (Bytes{0x00, 0x00, 0x88, 0xB8}));
    // TRA1-like negative minimum: CAO, register 563 = 0x233.
    EXPECT_EQ(ask({0x40, 0x42, 0x33}), (Bytes{0x3F, 0xFF, 0xC0, 0x00}));
    // Read-only: 0 to 536870911. Unknown: 0.
    EXPECT_EQ(ask({0x40, 0x97, 0x84}), (Bytes{0x1F, 0xFF, 0xFF, 0xFF}));
    EXPECT_EQ(ask({0x40, 0x83, 0xE7}), (Bytes{0x00, 0x00, 0x00, 0x00}));
}

TEST_F(Items, ValuesAreSignedInTheirField)
{
    ask({0x82, 0x33, 0x7F, 0xFF, 0xFF}); // CAO := -1 in 22 bits
    EXPECT_EQ(drive.read(sim::reg::SetpointOffset), -1);
    ask({0x3F, 0xFF, 0xC0, 0x00}); // := -16384 in 30 bits
    EXPECT_EQ(drive.read(sim::reg::SetpointOffset), -16384);
}

TEST_F(Items, TooManyReturnValuesAreNeverCutShort)
{
    const Bytes request(31 * 2, 0x80); // 31 items that select register 0
    EXPECT_EQ(ask(request).size(), 124u);
}

TEST_F(Items, InstantAndBufferedCommandsKeepSeparateCopies)
{
    ask({SelectorHigh, SelectorLow, 0x40, 0x00, 0xCA, LengthHigh, LengthLow, 0x40, 0x00,
         0x01}); // instant: 202, 3 bytes
    // Buffered: selector 201 in two bytes, then select 551. Executed in the next cycle.
    ask({SelectorHigh, SelectorLow, 0x40, 0x00, 0xC9, LengthHigh, LengthLow, 0x40, 0x00, 0x02, 0x82, 0x27},
        sim::BufferedCommand);
    drive.advanceCycles(1);
    EXPECT_EQ(ask({0x80, 0x00}), (Bytes{0x40, 0x01, 0x68})) << "the instant copy has not moved";
    EXPECT_EQ(ask({}, sim::BufferedCommand), (Bytes{0, 0, 0, 0, 0, 0, 0, 0x78, 0, 0, 0, 0x78, 0x80, 0x78, 0x80, 0x78}));
}

TEST(Packets, RequestIsTakenOnlyWithTheRightChecksum)
{
    sim::RequestParser parser;
    const Bytes clockRequest{0x50, 0x03, 0x7C, 0x01};
    std::optional<sim::Packet> packet;
    for (const std::uint8_t byte : clockRequest)
        packet = parser.feed(byte);
    ASSERT_TRUE(packet);
    EXPECT_EQ(packet->id, 0x50);
    EXPECT_EQ(packet->address, 3);
    for (const std::uint8_t byte : {0x50, 0x03, 0x7C, 0x02})
        EXPECT_FALSE(parser.feed(std::uint8_t(byte)));
    for (const std::uint8_t byte : clockRequest)
        packet = parser.feed(byte);
    EXPECT_TRUE(packet) << "a bad packet does not spoil the next";
}

TEST(Packets, EmptyVariablePacketGoesStraightToTheChecksum)
{
    EXPECT_THAT(sim::frame({0x25, 0x05, {}}), ElementsAre(0x25, 0x00, 0x05, 0xD1, 0xC8));
}

TEST(Endurance, RandomRequestsNeverHurtARunningDrive)
{
    std::minstd_rand random(7);
    for (const char *profile : {"keta", "torva"}) {
        sim::VirtualDrive drive(*sim::findProfile(profile), 5);
        drive.setRestartTime(std::chrono::milliseconds(1));
        for (int request = 0; request < 5000; ++request) {
            drive.set(sim::reg::SoftEnable, 1);
            // A real register now and then, so that more than refusals happen.
            const int registers[] = {200, 202, 411, 490, 551, 554, 555, 559, 560, 561, 802, 804, 806, 5011, 5020, 7532};
            const int address = registers[random() % 16];
            Bytes payload{std::uint8_t(0x80 | address >> 8), std::uint8_t(address)};
            const std::size_t size = 2 + random() % 40;
            while (payload.size() < size)
                payload.push_back(std::uint8_t(random() >> 8));
            const std::uint8_t id = random() % 3 ? sim::InstantCommand : sim::BufferedCommand;
            drive.answer({id, std::uint8_t(drive.address()), payload});
            drive.advanceCycles(3);
            ASSERT_LT(std::abs(drive.axis().motor().velocity()), 1000.0) << "request " << request;
            if (drive.isInUpgradeMode() || request % 500 == 0)
                drive.powerUp({});
        }
    }
}
