// Items, return values and packets: the drive's own reading of the line.
#include "drivebench.h"

#include "drivepacket.h"

#include <cmath>
#include <gmock/gmock.h>
#include <random>

using sim::Bytes;
using testing::ElementsAre;

namespace {

using Items = DriveBench;

// Writing register 9 (80 09) chooses what each item returns, register 10 (80 0A) in which length.
struct Exchange
{
    const char *what;
    Bytes request, reply;
    bool isFresh = false; ///< on a drive just switched on
};

// Register 202 = 0xCA (KVP) is 360 = 0x168, 411 = 0x19B (MMC) goes from 0 to 35000 = 0x88B8.
const Exchange exchanges[] = {
    {"register 0 in four bytes at power-on", {0x80, 0x09, 0x40, 0x00, 0xCA}, {0, 0, 0, 0, 0, 0, 0x01, 0x68}, true},
    {"then in three", {0x80, 0x0A, 0x40, 0x00, 0x01}, {0x00, 0x00, 0x01, 0x68, 0x40, 0x01, 0x68}},
    {"in two", {0x40, 0x00, 0x02}, {0x81, 0x68}},
    {"as an outcome", {0x40, 0x00, 0x03}, {0xC1}},
    {"register 0 refuses writes", {0x80, 0x00, 0x40, 0x00, 0x01}, {0xC1, 0xC2}},
    {"a value of 30 bits",
     {0x80, 0x09, 0x40, 0x03, 0x43, 0x80, 0x0A, 0x40, 0x00, 0x00},
     {0, 0, 0, 0, 0x22, 0x32, 0x9B, 0x00, 0x22, 0x32, 0x9B, 0x00, 0x22, 0x32, 0x9B, 0x00},
     true}, // HHL, set below
    {"is cut to 22", {0x40, 0x00, 0x01}, {0x72, 0x9B, 0x00}},
    {"and to 14", {0x40, 0x00, 0x02}, {0x9B, 0x00}},
    {"the minimum", {0x80, 0x09, 0x40, 0x41, 0x9B}, {0, 0, 0, 0, 0, 0, 0, 0}, true},
    {"the maximum", {0x40, 0x81, 0x9B}, {0x00, 0x00, 0x88, 0xB8}},
    {"the maximum, as a negative 22 bits", {0x7F, 0x81, 0x9B}, {0x00, 0x00, 0x88, 0xB8}},
    {"a negative minimum, CAO", {0x40, 0x42, 0x33}, {0x3F, 0xFF, 0xC0, 0x00}},
    {"of what is read-only", {0x40, 0x97, 0x84}, {0x1F, 0xFF, 0xFF, 0xFF}},
    {"of what does not exist", {0x40, 0x83, 0xE7}, {0x00, 0x00, 0x00, 0x00}},
    {"CAO itself", {0x40, 0x02, 0x33}, {0x00, 0x00, 0x00, 0x00}},
    {"-1 in 22 bits", {0x82, 0x33, 0x7F, 0xFF, 0xFF}, {0, 0, 0, 0, 0x3F, 0xFF, 0xFF, 0xFF}},
    {"-16384 in 30", {0x3F, 0xFF, 0xC0, 0x00}, {0x3F, 0xFF, 0xC0, 0x00}},
};

} // namespace

TEST_F(Items, EveryItemYieldsOneReturnValueOfTheSelectedRegisterAndLength)
{
    for (const Exchange &exchange : exchanges) {
        if (exchange.isFresh)
            startAfresh();
        drive.set(sim::reg::HighLimit, -500000000); // 0xE2329B00
        EXPECT_EQ(ask(exchange.request), exchange.reply) << exchange.what;
    }
}

TEST_F(Items, WalkingTheSelectorReadsOneRegisterAnItem)
{
    // 27 registers in one exchange fill the reply to the last byte.
    Bytes request{0x80, 0x0A, 0x40, 0x00, 0x00, 0x80, 0x09};
    for (int i = 0; i < 27; ++i)
        request.insert(request.end(), {0x40, 0x00, std::uint8_t(i % 2 ? 0xC8 : 0xC9)}); // 200 (KVI), 201 (KPP)
    const Bytes reply = ask(request);
    ASSERT_EQ(reply.size(), 120u);
    EXPECT_EQ(Bytes(reply.begin() + 12, reply.begin() + 20), (Bytes{0, 0, 0, 0x78, 0, 0, 0x01, 0x68}));
    // Too many return values are never cut short: 31 items that select register 0.
    EXPECT_EQ(ask(Bytes(31 * 2, 0x80)).size(), 124u);
}

TEST_F(Items, InstantAndBufferedCommandsKeepSeparateCopies)
{
    ask({0x80, 0x09, 0x40, 0x00, 0xCA, 0x80, 0x0A, 0x40, 0x00, 0x01}); // instant: 202, 3 bytes
    // Buffered: selector 201 in two bytes, then select 551. Executed in the next cycle.
    ask({0x80, 0x09, 0x40, 0x00, 0xC9, 0x80, 0x0A, 0x40, 0x00, 0x02, 0x82, 0x27}, sim::BufferedCommand);
    drive.advanceCycles(1);
    EXPECT_EQ(ask({0x80, 0x00}), (Bytes{0x40, 0x01, 0x68})) << "the instant copy has not moved";
    EXPECT_EQ(ask({}, sim::BufferedCommand), (Bytes{0, 0, 0, 0, 0, 0, 0, 0x78, 0, 0, 0, 0x78, 0x80, 0x78, 0x80, 0x78}));
}

TEST(Packets, RequestIsTakenOnlyWithTheRightChecksum)
{
    sim::RequestParser parser;
    const auto taken = [&](const Bytes &bytes) {
        std::optional<sim::Packet> packet;
        for (const std::uint8_t byte : bytes)
            packet = parser.feed(byte);
        return packet ? std::pair(int(packet->id), int(packet->address)) : std::pair(0, 0);
    };
    EXPECT_EQ(taken({0x50, 0x03, 0x7C, 0x01}), std::pair(0x50, 3));
    EXPECT_EQ(taken({0x50, 0x03, 0x7C, 0x02}), std::pair(0, 0));
    EXPECT_EQ(taken({0x50, 0x03, 0x7C, 0x01}), std::pair(0x50, 3)) << "a bad packet does not spoil the next";
    EXPECT_THAT(sim::frame({0x25, 0x05, {}}), ElementsAre(0x25, 0x00, 0x05, 0xD1, 0xC8)) << "empty payload";
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
