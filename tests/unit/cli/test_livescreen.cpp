#include "livescreen.h"

#include "printqt.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

StatusReport report()
{
    StatusReport report;
    report.identity = {{"port", "Port", "COM1"}, {"address", "Address", 5}};
    report.panels = {{"inputs", "Inputs", {"GPI 1", "GPI 2", "GPI 3"}},
                     {"faults", "Faults", {"Hardware", "ID 1 201 (https://wiki.example/Fault_location)"}}};
    return report;
}

} // namespace

TEST(LiveScreen, PutsPanelsBesideEachOtherWhereThereIsRoomAndDrawsNoMore)
{
    EXPECT_THAT(screenLines(report(), 40, 20),
                ElementsAre(QString("Port: COM1   Address: 5"), QString(""), QString("Inputs   Faults"),
                            QString("GPI 1    Hardware"), QString("GPI 2    ID 1 201"), QString("GPI 3")));
    EXPECT_THAT(screenLines(report(), 16, 20),
                ElementsAre(QString("Port: COM1"), QString("Address: 5"), QString(""), QString("Inputs"),
                            QString("GPI 1"), QString("GPI 2"), QString("GPI 3"), QString(""), QString("Faults"),
                            QString("Hardware"), QString("ID 1 201")));
    // Never more than the screen holds.
    EXPECT_THAT(screenLines(report(), 9, 4),
                ElementsAre(QString("Port: COM"), QString("Address: "), QString(""), QString("(8 more l")));
}
