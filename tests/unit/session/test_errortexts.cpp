#include "errortexts.h"
#include "printqt.h"

#include <gtest/gtest.h>

namespace {

const char *const seeTroubleshooting =
    "<br>Disconnected. See troubleshooting at "
    "<a href=\"https://wiki.tarnwell.example/wiki/Device_connection_troubleshooting\">"
    "https://wiki.tarnwell.example/wiki/Device_connection_troubleshooting</a>";

} // namespace

TEST(ErrorText, NamesEveryErrorInItsOrderAndTheParameterBeingWritten)
{
    SingleParam offset = undefinedParam(563, 0);
    offset.value = 150.5;
    offset.name = "CAO";
    offset.scaling = 163.84;
    const SingleParam small = undefinedParam(10, 3), large = undefinedParam(8125, -12345678);
    const QString lost = "Communication error, disconnected.", flags = "Communication error flags: <br>",
                  device = "<br>Device errors: <br>", writing = "Occurred while setting parameter: name=";
    const std::tuple<quint32, quint32, const SingleParam *, QString> rows[] = {
        {1 + 2 + 4 + 8 + 16 + 32, 0, nullptr,
         flags +
             "* NoDevice (interface)<br>* InvalidParameter (API)<br>* Communication (cheksum mismatch)<br>"
             "* DataLegth (timeout or app error)<br>* BusError<br>" +
             seeTroubleshooting},
        {2, 0, nullptr, flags + "* NoDevice (interface)<br>" + seeTroubleshooting},
        {5, 0, nullptr, flags + "* BusError<br>" + seeTroubleshooting},
        {9, 0, nullptr, flags + "* Communication (cheksum mismatch)<br>" + seeTroubleshooting},
        {17, 0, nullptr, flags + "* InvalidParameter (API)<br>" + seeTroubleshooting},
        {33, 0, nullptr, flags + "* DataLegth (timeout or app error)<br>" + seeTroubleshooting},
        {1, 31, &offset,
         lost + device +
             "* Command fail (NACK)<br>* Invalid param address<br>* Invalid param value<br>"
             "* Value too high<br>* Value too low<br>" +
             writing + "CAO, addr=563, GUI value=150.5, HW value=24658"},
        {1, 8, nullptr, lost + device + "* Value too high<br>"},
        {9, 2, &small,
         flags + "* Communication (cheksum mismatch)<br>" + seeTroubleshooting + device +
             "* Invalid param address<br>" + writing + "undefined, addr=10, GUI value=3, HW value=3"},
        {1, 16, &large,
         lost + device + "* Value too low<br>" + writing +
             "undefined, addr=8125, GUI value=-1.23457e+07, HW value=-1.23457e+07"},
        {64, 0, nullptr, lost}, // something is said about bits that nobody knows, too
        {1, 64, nullptr, lost},
    };
    for (const auto &[status, deviceErrors, param, text] : rows)
        EXPECT_EQ(busErrorText(true, status, deviceErrors, param), text);
    // Nothing went wrong, or nothing is connected.
    EXPECT_EQ(busErrorText(true, 0, 0) + busErrorText(true, 1, 0) + busErrorText(false, 1 + 8, 31), "");
}

TEST(ErrorText, ARefusedWriteNamesValueAndLimits)
{
    SingleParam gain = undefinedParam(202, 40000);
    gain.name = "KVP";
    gain.max = 30000;
    EXPECT_EQ(
        refusedWriteText(8, &gain),
        "The drive refused a write; the connection goes on.<br>Device errors: <br>* Value too high<br>Occurred "
        "while setting parameter: name=KVP, addr=202, GUI value=40000, HW value=40000<br>This drive: 0 to 30000.");
    gain.max = 0; // nobody has asked the drive
    EXPECT_FALSE(refusedWriteText(8, &gain).contains("This drive"));
}
