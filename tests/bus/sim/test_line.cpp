// The virtual bus on its port: bytes in, bytes out.
#include "testline.h"
#include "virtualbusfixture.h"

#include <gmock/gmock.h>

using namespace std::chrono_literals;
using sim::Bytes;
using sim::LineFault;

namespace {

// Read of register 6020 at address 5: select 10, write 0, select 9, write 6020; the CRC's low byte first.
const Bytes readType = {0x24, 0x0A, 0x05, 0x80, 0x0A, 0x40, 0x00, 0x00, 0x80, 0x09, 0x40, 0x17, 0x84, 0x09, 0x4D};
// On a fresh drive: register 0 three times (the selector still stands on it), then 11000, all in four bytes.
const Bytes firstReply = {0x25, 0x10, 0x05, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
                          0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x2A, 0xF8, 0x4E, 0x7D};
// From the second time on the selector stands on 6020 from the start.
const Bytes typeReply = {0x25, 0x10, 0x05, 0x00, 0x00, 0x2A, 0xF8, 0x00, 0x00, 0x2A, 0xF8,
                         0x00, 0x00, 0x2A, 0xF8, 0x00, 0x00, 0x2A, 0xF8, 0xDE, 0xBE};

/// The fixture's drive, read once.
class Line : public VirtualBusFixture
{
protected:
    void SetUp() override
    {
        VirtualBusFixture::SetUp();
        TestLine line(port());
        ASSERT_EQ(line.exchange(readType, firstReply.size()), firstReply);
        bus().clearReceived();
    }
};

} // namespace

TEST_F(Line, OtherAddressesAndBadChecksumsAreHeardButNotAnswered)
{
    TestLine line(port());
    line.send({0x50, 0x06, 0xBC, 0x02}); // clock of address 6
    ASSERT_TRUE(waitForRequests(1));
    Bytes spoilt = readType;
    spoilt.back() ^= 1;
    line.send(spoilt);
    // Anything else that had been answered would stand before these.
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(line.exchange(readType, typeReply.size()), typeReply) << "replies to the good requests only";
    EXPECT_EQ(bus().received().size(), 3u) << "what fails its checksum is no packet";
}

TEST_F(Line, HalfAPacketIsForgottenAfterSilence)
{
    TestLine line(port());
    line.send({0x24, 0x0A, 0x05, 0x80});
    EXPECT_EQ(line.receive(1, 100ms), Bytes{}) << "silence";
    Bytes reply;
    while (reply.empty()) // on a busy machine the bus may not have seen the gap
        reply = line.exchange(readType, typeReply.size(), 500ms);
    EXPECT_EQ(reply, typeReply);
}

TEST_F(Line, EachKindOfDamageHitsTheReplyAsDescribed)
{
    TestLine line(port());
    const std::size_t whole = typeReply.size();
    const auto changed = [](void (*change)(Bytes &)) {
        Bytes reply = typeReply;
        change(reply);
        return reply;
    };
    // Exactly the bytes that are to arrive are taken: one more would spoil what follows.
    const std::vector<std::pair<LineFault, Bytes>> rows = {
        {{LineFault::Drop, 18}, changed([](Bytes &r) { r.erase(r.begin() + 18); })},
        {{LineFault::Double, 17}, changed([](Bytes &r) { r.insert(r.begin() + 17, 0x2A); })},
        {{LineFault::Twice}, changed([](Bytes &r) { r.insert(r.end(), typeReply.begin(), typeReply.end()); })},
        {{LineFault::Cut, 4}, {0x25, 0x10, 0x05, 0x00}},
        {{LineFault::Late, 50}, typeReply},
        {{LineFault::Missing}, {}},
        {{LineFault::Deaf}, {}},
    };
    for (const LineFault::Kind kind : LineFault::allKinds()) {
        SCOPED_TRACE(LineFault::name(kind));
        if (kind == LineFault::Flip || kind == LineFault::Noise || kind == LineFault::Unplugged)
            continue; // below
        const auto row = std::find_if(rows.begin(), rows.end(), [=](const auto &r) { return r.first.kind == kind; });
        if (row == rows.end()) { // a new one: whatever it does, it does something
            bus().setFault({kind, 4, 0, 1});
            EXPECT_NE(line.exchange(readType, whole, 200ms), typeReply);
            line.receive(4096, 100ms); // what is left of it
            continue;
        }
        const auto &[fault, arrives] = *row;
        bus().clearReceived();
        bus().setFault(fault);
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_EQ(line.exchange(readType, arrives.size()), arrives);
        EXPECT_TRUE(kind != LineFault::Late || std::chrono::steady_clock::now() - begin >= 49ms);
        ASSERT_TRUE(waitForRequests(1));
    }
    bus().setFault({LineFault::Flip, 0});
    const Bytes flipped = line.exchange(readType, whole);
    ASSERT_EQ(flipped.size(), whole);
    EXPECT_EQ(__builtin_popcount(flipped[0] ^ typeReply[0]), 1);
    EXPECT_EQ(Bytes(flipped.begin() + 1, flipped.end()), Bytes(typeReply.begin() + 1, typeReply.end()));
    bus().clearFaults();
    EXPECT_EQ(line.exchange(readType, whole), typeReply);
}

TEST_F(Line, MissingReplyWasExecutedAndDeafOneWasNot)
{
    TestLine line(port());
    const Bytes enable{0x24, 0x06, 0x05, 0x89, 0xE5, 0x00, 0x00, 0x00, 0x01, 0xED, 0x64}; // 2533 := 1
    bus().setFault({LineFault::Deaf});
    line.send(enable);
    ASSERT_TRUE(waitForRequests(1));
    EXPECT_EQ(bus().read(5, 2533), 0);
    bus().setFault({LineFault::Missing});
    line.send(enable);
    EXPECT_TRUE(bus().waitForRegister(5, 2533, 1));
}

TEST_F(Line, FaultsFollowEachOtherAfterTheirCounts)
{
    TestLine line(port());
    bus().setFaults({{LineFault::Cut, 3, 1, 1}, {LineFault::Cut, 5, 0, 1}});
    for (const std::size_t length : {typeReply.size(), std::size_t(3), std::size_t(5), typeReply.size()})
        EXPECT_EQ(line.exchange(readType, length).size(), length);
}

TEST_F(Line, NoiseGoesOnUntilCleared)
{
    TestLine line(port());
    bus().setFault({LineFault::Noise});
    line.send(readType);
    EXPECT_EQ(line.receive(20000).size(), 20000u);
    bus().clearFaults();
    while (!line.receive(4096, 100ms).empty())
        continue;
    EXPECT_EQ(line.exchange(readType, typeReply.size()), typeReply);
}

TEST_F(Line, PacedRepliesTakeTheirTimeOnTheLine)
{
    TestLine line(port());
    bus().setLineRate(true);
    bus().setTurnAround(300us);
    const auto begin = std::chrono::steady_clock::now();
    constexpr int exchanges = 50;
    for (int i = 0; i < exchanges; ++i)
        ASSERT_EQ(line.exchange(readType, typeReply.size()), typeReply);
    const auto each = (std::chrono::steady_clock::now() - begin) / exchanges;
    // 15 bytes out and 21 back at 10 bits are 781 us, and the turn-around.
    EXPECT_GE(each, 1081us);
    EXPECT_LT(each, 20ms);
}

TEST_F(Line, UnpluggedPortEndsForItsUserAndComesBackUnderTheSameName)
{
    TestLine line(port());
    bus().set(5, 202, 123);
    bus().unplug();
    EXPECT_FALSE(bus().isPluggedIn());
    EXPECT_EQ(line.receive(1), Bytes{});
    EXPECT_FALSE(TestLine(port()).isOpen());
    ASSERT_EQ(bus().plugIn(), "");
    TestLine again(port());
    EXPECT_EQ(again.exchange(readType, typeReply.size()), typeReply);
    EXPECT_EQ(bus().read(5, 202), 123) << "the drive has lived on";

    // As a fault it comes instead of a reply.
    bus().setFault({LineFault::Unplugged, LineFault::anyByte, 1});
    EXPECT_EQ(again.exchange(readType, typeReply.size()), typeReply);
    EXPECT_EQ(again.exchange(readType, 1), Bytes{});
    EXPECT_FALSE(bus().isPluggedIn());
}

namespace {

class TwoDrives : public VirtualBusFixture
{
protected:
    sim::BusOptions busOptions() const override
    {
        sim::BusOptions options;
        EXPECT_EQ(sim::parseDrives("keta@3,torva:poles=3@7", options.drives), "");
        return options;
    }
};

} // namespace

TEST_F(TwoDrives, AnswerEachForItself)
{
    EXPECT_EQ(bus().read(3, 6020), 11000);
    EXPECT_EQ(bus().read(7, 6020), 4000);
    bus().set(3, 2533, 1);
    bus().set(7, 2533, 1);
    EXPECT_TRUE(bus().waitForRegister(7, 552, 2048)) << "its motor has other poles";
    EXPECT_TRUE(bus().waitForRegister(3, 553, [](std::int32_t status) { return status & 8; }));
    TestLine line(port());
    EXPECT_EQ(line.exchange({0x50, 0x03, 0x7C, 0x01}, 6)[1], 3);
    EXPECT_EQ(line.exchange({0x50, 0x07, 0x7D, 0xC2}, 6)[1], 7);
}

TEST(VirtualBus, RefusesWhatCannotBe)
{
    PrivateFolder folder;
    const auto error = [](std::vector<sim::DriveOptions> drives, std::string link = {}, std::string state = {}) {
        sim::BusOptions options;
        options.drives = std::move(drives);
        options.linkPath = link;
        options.stateFile = state;
        return sim::VirtualBus(options).start();
    };
    EXPECT_THAT(error({{"keta", 5}, {"torva", 5}}), testing::HasSubstr("two drives at address 5"));
    EXPECT_THAT(error({{"toaster", 5}}), testing::HasSubstr("toaster"));
    EXPECT_THAT(error({{"keta", 0}}), testing::HasSubstr("address 0"));
    EXPECT_THAT(error({{"keta", 5}}, "/nowhere/COM1"), testing::HasSubstr("/nowhere/COM1"));
    std::filesystem::create_directory("COM1");
    EXPECT_THAT(error({{"keta", 5}}, "COM1"), testing::HasSubstr("not a link"));
    EXPECT_THAT(error({{"keta", 5}}, "", "COM1"), testing::HasSubstr("not a file"));
}

TEST(VirtualBus, TakesALeftOverLinkButNeverThatOfARunningBus)
{
    PrivateFolder folder;
    sim::BusOptions options;
    options.linkPath = "COM1";
    std::filesystem::create_symlink("/dev/pts/987654", "COM1");
    sim::VirtualBus first(options), second(options);
    ASSERT_EQ(first.start(), "");
    EXPECT_THAT(second.start(), testing::HasSubstr("COM1: a virtual drive that is running"));
    EXPECT_EQ(std::filesystem::read_symlink("COM1").string(), first.portName());
    const TestLine user("COM1"); // a program that has the port open changes nothing
    EXPECT_THAT(second.start(), testing::HasSubstr("is running"));
    first.unplug();
    EXPECT_EQ(first.plugIn(), "") << "its own link";
    first.stop();
    ASSERT_EQ(second.start(), "");
    // Somebody else has taken the name over since: it stays.
    std::filesystem::remove("COM1");
    std::filesystem::create_symlink("/dev/pts/987654", "COM1");
    second.stop();
    EXPECT_TRUE(std::filesystem::is_symlink("COM1"));
}
