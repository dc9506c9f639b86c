#include "errortexts.h"

#include "makerlinks.h"
#include "sessiontext.h"

#include <cerrno>
#include <cstring>

namespace {

struct BitText
{
    quint32 bit;
    const char *text;
};

// Misspellings included: people search for these texts.
constexpr BitText busTexts[] = {
    {2, QT_TRANSLATE_NOOP("Connection", "* NoDevice (interface)<br>")},
    {16, QT_TRANSLATE_NOOP("Connection", "* InvalidParameter (API)<br>")},
    {8, QT_TRANSLATE_NOOP("Connection", "* Communication (cheksum mismatch)<br>")},
    {32, QT_TRANSLATE_NOOP("Connection", "* DataLegth (timeout or app error)<br>")},
    {4, QT_TRANSLATE_NOOP("Connection", "* BusError<br>")},
};

constexpr BitText deviceTexts[] = {
    {1, QT_TRANSLATE_NOOP("Connection", "* Command fail (NACK)<br>")},
    {2, QT_TRANSLATE_NOOP("Connection", "* Invalid param address<br>")},
    {4, QT_TRANSLATE_NOOP("Connection", "* Invalid param value<br>")},
    {8, QT_TRANSLATE_NOOP("Connection", "* Value too high<br>")},
    {16, QT_TRANSLATE_NOOP("Connection", "* Value too low<br>")},
};

template <std::size_t count> QString linesOf(quint32 bits, const BitText (&table)[count])
{
    QString lines;
    for (const BitText &row : table) {
        if (bits & row.bit)
            lines += SessionText::tr(row.text);
    }
    return lines;
}

QString general(double value)
{
    return QString::number(value, 'g', 6);
}

QString settingText(const SingleParam &param)
{
    return SessionText::tr("Occurred while setting parameter: name=%1, addr=%2, GUI value=%3, HW value=%4")
        .arg(param.name, QString::number(param.addr), general(param.value),
             general(param.convertToDeviceScale(param.value)));
}

} // namespace

QString busErrorText(bool connected, quint32 busStatus, quint32 deviceErrors, const SingleParam *param)
{
    if (!connected || (busStatus < 2 && deviceErrors == 0))
        return QString();

    QString text;
    const QString busLines = linesOf(busStatus, busTexts);
    if (busLines.isEmpty())
        text = SessionText::tr("Communication error, disconnected.");
    else
        text = SessionText::tr("Communication error flags: <br>%1<br>Disconnected. See troubleshooting at "
                               "<a href=\"%2\">%2</a>")
                   .arg(busLines, makerWikiPage(QStringLiteral("/wiki/Device_connection_troubleshooting")));

    const QString deviceLines = linesOf(deviceErrors, deviceTexts);
    if (!deviceLines.isEmpty())
        text += SessionText::tr("<br>Device errors: <br>%1").arg(deviceLines);
    if (param)
        text += settingText(*param);
    return text;
}

QString lineTroubleText(bool silent)
{
    return silent
               ? SessionText::tr("The drive did not answer: check its power and the cable.")
               : SessionText::tr("The drive's answer came damaged: check the cable, its shield and the termination.");
}

QString noConnectionText(bool silent, int nodeAddress)
{
    return silent ? SessionText::tr("The port is open, but nobody answered at address %1: check the drive's power, its "
                                    "address and the cable.")
                        .arg(nodeAddress)
                  : SessionText::tr("Something answered at address %1, but damaged: check the cable, its shield and "
                                    "the termination.")
                        .arg(nodeAddress);
}

QString openErrorText(const QString &portName, int error)
{
    const QString port = portName.toHtmlEscaped();
    switch (error) {
    case ENOENT:
    case ENODEV:
    case ENXIO:
        return SessionText::tr("There is no port %1: check that the adapter is plugged in.").arg(port);
    case EACCES:
    case EPERM:
        return SessionText::tr("There is no permission to use %1: ask for membership in the group that owns it, often "
                               "\"dialout\", and log in again.")
            .arg(port);
    case EBUSY:
        return SessionText::tr("%1 is in use by another program.").arg(port);
    case EINVAL:
    case ENOTTY:
        return SessionText::tr("%1 is not a serial port.").arg(port);
    default:
        return SessionText::tr("%1 cannot be opened: %2.").arg(port, QString::fromLocal8Bit(std::strerror(error)));
    }
}

QString refusalReasons(quint32 deviceErrors)
{
    return linesOf(deviceErrors, deviceTexts);
}

QString refusedWriteText(quint32 deviceErrors, const SingleParam *param)
{
    QString text = SessionText::tr("The drive refused a write; the connection goes on.<br>Device errors: <br>%1")
                       .arg(refusalReasons(deviceErrors));
    if (!param)
        return text;
    text += settingText(*param);
    if (param->min < param->max)
        text += SessionText::tr("<br>This drive: %1 to %2.").arg(general(param->min), general(param->max));
    return text;
}

QString brokenOffWriteText(const QString &last)
{
    if (last.isEmpty())
        return SessionText::tr("Writing broke off: it is not sure that any of the settings reached the drive.");
    return SessionText::tr("Writing broke off: part of the settings reached the drive. The last that surely did is %1.")
        .arg(last.toHtmlEscaped());
}

QString undoneEnableText(DisableOutcome outcome)
{
    if (outcome == DisableOutcome::Disabled)
        return SessionText::tr("The drive did not confirm that it was enabled, so it was disabled again. It shows that "
                               "it is not enabled.");
    if (outcome == DisableOutcome::StillEnabled)
        return SessionText::tr("The drive did not confirm that it was enabled, so a disable was sent. It shows that it "
                               "is still enabled: use the machine's own stop.");
    return SessionText::tr("The drive did not confirm that it was enabled, and does not answer to a disable either: it "
                           "may be enabled. Use the machine's own stop.");
}

QString disabledWithoutConnectionText(DisableOutcome outcome, const QString &portName, int nodeAddress)
{
    const QString port = portName.toHtmlEscaped();
    switch (outcome) {
    case DisableOutcome::Disabled:
        return SessionText::tr("The drive at address %2 on %1 was disabled without a connection. It shows that it is "
                               "not enabled.")
            .arg(port)
            .arg(nodeAddress);
    case DisableOutcome::StillEnabled:
        return SessionText::tr("The drive at address %2 on %1 answers, but shows that it is still enabled: use the "
                               "machine's own stop.")
            .arg(port)
            .arg(nodeAddress);
    case DisableOutcome::NoAnswer:
        return SessionText::tr("The drive at address %2 on %1 did not confirm that it was disabled: it may still be "
                               "powered. Use the machine's own stop.")
            .arg(port)
            .arg(nodeAddress);
    case DisableOutcome::NoPort:
        break;
    }
    return SessionText::tr("The drive at address %2 on %1 could not be told to disable: it may still be powered. Use "
                           "the machine's own stop.<br>")
        .arg(port)
        .arg(nodeAddress);
}

SingleParam undefinedParam(int addr, int value)
{
    SingleParam p;
    p.name = QStringLiteral("undefined");
    p.addr = addr;
    p.value = value;
    return p;
}
