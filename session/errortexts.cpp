#include "errortexts.h"

#include "makerlinks.h"
#include "sessiontext.h"

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
        text += SessionText::tr("Occurred while setting parameter: name=%1, addr=%2, GUI value=%3, HW value=%4")
                    .arg(param->name, QString::number(param->addr), general(param->value),
                         general(param->convertToDeviceScale(param->value)));
    return text;
}

SingleParam undefinedParam(int addr, int value)
{
    SingleParam p;
    p.name = QStringLiteral("undefined");
    p.addr = addr;
    p.value = value;
    return p;
}
