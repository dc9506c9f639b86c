#include "livescreen.h"

#include "printqt.h"

#include <gtest/gtest.h>

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
    EXPECT_EQ(screenLines(report(), 40, 20), QStringList({"Port: COM1   Address: 5", "", "Inputs   Faults",
                                                          "GPI 1    Hardware", "GPI 2    ID 1 201", "GPI 3"}));
    EXPECT_EQ(screenLines(report(), 16, 20), QStringList({"Port: COM1", "Address: 5", "", "Inputs", "GPI 1", "GPI 2",
                                                          "GPI 3", "", "Faults", "Hardware", "ID 1 201"}));
    // Never more than the screen holds.
    EXPECT_EQ(screenLines(report(), 9, 4), QStringList({"Port: COM", "Address: ", "", "(8 more l"}));
}
