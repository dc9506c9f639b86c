#include "html.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Report)
};

} // namespace

QString html::section(const QString &title, const QString &contents)
{
    return QStringLiteral("<section>\n<h2>%1</h2>\n").arg(title.toHtmlEscaped()) + contents +
           QLatin1String("</section>\n");
}

QString html::paragraph(const QString &text)
{
    return QLatin1String("<p>") + text.toHtmlEscaped() + QLatin1String("</p>\n");
}

QString html::table(const Facts &rows)
{
    QString text = QStringLiteral("<table class=\"facts\">\n");
    for (const auto &[caption, value] : rows)
        text += QLatin1String("<tr><th>") + caption.toHtmlEscaped() + QLatin1String("</th><td>") +
                value.toHtmlEscaped() + QLatin1String("</td></tr>\n");
    return text + QLatin1String("</table>\n");
}

QString html::number(double value)
{
    return QString::number(value, 'g', 15);
}

QString html::known(int value, int base)
{
    return value != 0 ? QString::number(value, base).toUpper() : Text::tr("not known");
}

QString html::when(const QDateTime &time)
{
    return time.isValid() ? time.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss t")) : Text::tr("not known");
}

html::Facts html::identity(const DriveIdentity &drive)
{
    Facts rows = {
        {Text::tr("Model"), drive.model},
        {Text::tr("HW type ID"), known(drive.type)},
        {Text::tr("Serial number"), known(drive.serial)},
        {Text::tr("Bus address"), known(drive.address)},
        {Text::tr("TarnwellCore firmware version"), known(drive.firmware)},
    };
    if (drive.ioFirmware != 0)
        rows.append({Text::tr("I/O side firmware version"), known(drive.ioFirmware)});
    if (drive.buildRevision != 0)
        rows.append({Text::tr("Firmware revision ID"), known(drive.buildRevision, 16)});
    return rows;
}
