#include "errortexts.h"
#include "printqt.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace {

const char *const seeTroubleshooting =
    "<br>Disconnected. See troubleshooting at "
    "<a href=\"https://wiki.tarnwell.example/wiki/Device_connection_troubleshooting\">"
    "https://wiki.tarnwell.example/wiki/Device_connection_troubleshooting</a>";

} // namespace

TEST(ErrorText, IsEmptyWhenNothingWentWrongOrNothingIsConnected)
{
    EXPECT_EQ(busErrorText(true, 0, 0), "");
    EXPECT_EQ(busErrorText(true, 1, 0), "");
    EXPECT_EQ(busErrorText(false, 1 + 8, 31), "");
}

TEST(ErrorText, NamesEveryBusErrorInItsOrder)
{
    EXPECT_EQ(busErrorText(true, 1 + 2 + 4 + 8 + 16 + 32, 0), QString("Communication error flags: <br>"
                                                                      "* NoDevice (interface)<br>"
                                                                      "* InvalidParameter (API)<br>"
                                                                      "* Communication (cheksum mismatch)<br>"
                                                                      "* DataLegth (timeout or app error)<br>"
                                                                      "* BusError<br>") +
                                                                  seeTroubleshooting);
    const struct
    {
        quint32 status;
        const char *line;
    } cases[] = {
        {2, "* NoDevice (interface)<br>"},
        {5, "* BusError<br>"},
        {9, "* Communication (cheksum mismatch)<br>"},
        {17, "* InvalidParameter (API)<br>"},
        {33, "* DataLegth (timeout or app error)<br>"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(busErrorText(true, c.status, 0),
                  QString("Communication error flags: <br>") + c.line + seeTroubleshooting);
}

TEST(ErrorText, NamesEveryDeviceErrorWithTheParameterBeingWritten)
{
    SingleParam offset;
    offset.name = "CAO";
    offset.addr = 563;
    offset.scaling = 163.84;
    offset.value = 150.5;
    EXPECT_EQ(busErrorText(true, 1, 31, &offset),
              "Communication error, disconnected."
              "<br>Device errors: <br>"
              "* Command fail (NACK)<br>"
              "* Invalid param address<br>"
              "* Invalid param value<br>"
              "* Value too high<br>"
              "* Value too low<br>"
              "Occurred while setting parameter: name=CAO, addr=563, GUI value=150.5, HW value=24658");
    EXPECT_EQ(busErrorText(true, 1, 8),
              "Communication error, disconnected.<br>Device errors: <br>* Value too high<br>");
}

TEST(ErrorText, PutsBusErrorsBeforeDeviceErrors)
{
    const SingleParam p = undefinedParam(10, 3);
    EXPECT_EQ(busErrorText(true, 9, 2, &p),
              QString("Communication error flags: <br>* Communication (cheksum mismatch)<br>") + seeTroubleshooting +
                  "<br>Device errors: <br>* Invalid param address<br>"
                  "Occurred while setting parameter: name=undefined, addr=10, GUI value=3, HW value=3");
}

TEST(ErrorText, PrintsNumbersWithSixSignificantDigits)
{
    const SingleParam p = undefinedParam(8125, -12345678);
    EXPECT_TRUE(busErrorText(true, 1, 16, &p)
                    .endsWith("name=undefined, addr=8125, GUI value=-1.23457e+07, HW "
                              "value=-1.23457e+07"));
}

TEST(ErrorText, SaysSomethingAboutBitsItDoesNotKnow)
{
    EXPECT_EQ(busErrorText(true, 64, 0), "Communication error, disconnected.");
    EXPECT_EQ(busErrorText(true, 1, 64), "Communication error, disconnected.");
}

TEST(ErrorText, TellsPortsThatCannotBeOpenedApart)
{
    const struct
    {
        int error;
        const char *text;
    } cases[] = {
        {ENOENT, "There is no port COM1: check that the adapter is plugged in."},
        {EBUSY, "COM1 is in use by another program."},
        {ENOTTY, "COM1 is not a serial port."},
        {EIO, "COM1 cannot be opened: Input/output error."},
    };
    for (const auto &each : cases)
        EXPECT_EQ(openErrorText("COM1", each.error), each.text);
    EXPECT_TRUE(openErrorText("COM1", EACCES).startsWith("There is no permission to use COM1"));
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
