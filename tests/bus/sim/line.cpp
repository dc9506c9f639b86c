// The virtual bus on its port: bytes in, bytes out.
#include "testline.h"
#include "virtualbusfixture.h"

#include <gmock/gmock.h>

using namespace std::chrono_literals;
using sim::Bytes;

namespace {

// Read of register 6020 at address 5: select 10, write 0, select 9, write 6020; the CRC's low byte first.
const Bytes ReadType = {0x24, 0x0A, 0x05, 0x80, 0x0A, 0x40, 0x00, 0x00, 0x80, 0x09, 0x40, 0x17, 0x84, 0x09, 0x4D};
// Register 0 three times (the selector still stands on it), then 11000, all in four bytes.
const Bytes TypeReply = {0x25, 0x10, 0x05, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
                         0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x2A, 0xF8, 0x4E, 0x7D};

} // namespace

TEST_F(VirtualBusFixture, OffersItsPortAsLink)
{
    EXPECT_TRUE(TestLine(port()).isOpen());
    EXPECT_EQ(std::filesystem::read_symlink(port()).string(), bus().portName());
}

TEST_F(VirtualBusFixture, AnswersAReadByteForByte)
{
    TestLine line(port());
    EXPECT_EQ(line.exchange(ReadType, TypeReply.size()), TypeReply);
    ASSERT_TRUE(waitForRequests(1));
    EXPECT_EQ(bus().received()[0].bytes, ReadType);
}
