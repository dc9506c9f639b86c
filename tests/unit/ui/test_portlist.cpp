// The list of serial ports: what is listed, how it is called, which one is chosen.
#include "portlist.h"

#include <gtest/gtest.h>

namespace {

SerialPort unixPort(const QString &name)
{
    return {name, "/dev/" + name, "", "", 0, 0};
}

} // namespace

TEST(PortList, AdaptersCarryASuffixAndTheLastOneIsChosen)
{
    PortList list = portListOf({unixPort("ttyS0"), unixPort("ttyUSB0"), unixPort("ttyUSB1"), unixPort("ttyACM0")});
    EXPECT_EQ(list.items, QStringList({"/dev/ttyS0", "/dev/ttyUSB0 Possibly Zetabus V2 adapter",
                                       "/dev/ttyUSB1 Possibly Zetabus V2 adapter", "/dev/ttyACM0"}));
    EXPECT_EQ(list.current, 2);
    // Windows' ports are recognised by their USB identity.
    list = portListOf(
        {{"COM1", "COM1", "", "", 0, 0}, {"COM4", "COM4", "", "", 1027, 24577}, {"COM5", "COM5", "", "", 1027, 24592}});
    EXPECT_EQ(list.items, QStringList({"COM1", "COM4 Zetabus V2 adapter", "COM5"}));
    EXPECT_EQ(list.current, 1);
    list = portListOf({unixPort("lp0"), unixPort("rfcomm0")});
    EXPECT_TRUE(list.items.isEmpty());
    EXPECT_EQ(list.current, -1);
    EXPECT_EQ(portListOf({unixPort("ttyS0"), unixPort("ttyS1")}).current, 0);
}

TEST(PortList, VirtualDriveComesFirstAndAnAskedForPortWins)
{
    PortList list = portListOf({unixPort("ttyUSB0")});
    addVirtualDrive(list, "COM1");
    EXPECT_EQ(list.items.first(), "COM1 Virtual drive");
    EXPECT_EQ(list.current, 0);
    preselectPort(list, "/dev/ttyUSB0");
    EXPECT_EQ(list.current, 1);
    preselectPort(list, "/dev/ttyUSB"); // not merely the beginning of a name
    EXPECT_EQ(list.items,
              QStringList({"/dev/ttyUSB", "COM1 Virtual drive", "/dev/ttyUSB0 Possibly Zetabus V2 adapter"}));
    EXPECT_EQ(list.current, 0);
}
