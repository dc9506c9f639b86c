#include "livescreen.h"

#include "clitext.h"

#include <QRegularExpression>

#include <algorithm>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr int columnGap = 3;

const char *const enterScreen = "\033[?1049h\033[?25l"; // second screen, no cursor
const char *const leaveScreen = "\033[?25h\033[?1049l";
const char *const toTop = "\033[H";
const char *const clearLine = "\033[K";
const char *const clearBelow = "\033[J";

struct ScreenSize
{
    int width = 80;
    int height = 24;
};

ScreenSize screenSize()
{
    winsize size{};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0 || size.ws_row == 0)
        return {};
    return {size.ws_col, size.ws_row};
}

QStringList identityLines(const StatusReport &report, int width)
{
    QStringList lines(QString{});
    for (const StatusReport::Line &entry : report.identity) {
        const QString text = entry.caption + QLatin1String(": ") + entry.value.toString();
        const bool isFirst = lines.last().isEmpty();
        if (!isFirst && lines.last().size() + columnGap + text.size() > width)
            lines.append(text);
        else
            lines.last() += (isFirst ? QString() : QString(columnGap, QLatin1Char(' '))) + text;
    }
    return lines;
}

int widest(const QStringList &lines)
{
    int width = 0;
    for (const QString &line : lines)
        width = std::max(width, int(line.size()));
    return width;
}

/// Pages of the maker's would take the room of a panel.
QStringList withoutAddresses(QStringList lines)
{
    return lines.replaceInStrings(QRegularExpression(QStringLiteral(" \\(https?://[^)]*\\)")), QString());
}

/// Panels beside each other, as long as they fit; then the next row of them.
QStringList panelLines(const QList<StatusReport::Panel> &panels, int width)
{
    QStringList lines;
    int rowTop = 0;
    int column = 0;
    for (const StatusReport::Panel &panel : panels) {
        const QStringList block = QStringList(panel.caption) + withoutAddresses(panel.lines);
        if (column > 0 && column + widest(block) > width) {
            lines.append(QString());
            rowTop = lines.size();
            column = 0;
        }
        for (int i = 0; i < block.size(); ++i) {
            if (rowTop + i >= lines.size())
                lines.append(QString());
            QString &line = lines[rowTop + i];
            line = line.leftJustified(column) + block.at(i);
        }
        column += widest(block) + columnGap;
    }
    return lines;
}

} // namespace

QStringList screenLines(const StatusReport &report, int width, int height)
{
    QStringList lines = identityLines(report, width) + QStringList(QString()) + panelLines(report.panels, width);
    if (lines.size() > height) {
        const int left = lines.size() - height + 1;
        lines = lines.mid(0, height - 1);
        lines.append(tr("(%1 more lines)").arg(left));
    }
    for (QString &line : lines)
        line.truncate(width);
    return lines;
}

LiveScreen::LiveScreen() : m_isTerminal(isatty(STDOUT_FILENO) != 0) {}

LiveScreen::~LiveScreen()
{
    if (m_isShown)
        writeOut(leaveScreen + m_last);
}

bool LiveScreen::draw(const StatusReport &report)
{
    QByteArray bytes = m_isShown ? QByteArray() : QByteArray(enterScreen);
    m_isShown = true;
    const ScreenSize size = screenSize();
    bytes += toTop;
    QByteArray separator;
    for (const QString &line : screenLines(report, size.width, size.height)) {
        bytes += separator + line.toUtf8() + clearLine;
        separator = "\r\n";
    }
    m_last = printed(toResults(report), false);
    return writeOut(bytes + clearBelow);
}
