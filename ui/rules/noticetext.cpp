#include "noticetext.h"

#include <QRegularExpression>
#include <algorithm>
#include <utility>

namespace {

constexpr int longestNotice = 4000;

const char *const plainTags[] = {"b", "strong", "i", "em", "u", "br", "p", "h1", "h2", "h3", "h4", "ul", "ol", "li"};

/// What stands between "<" and ">" as a tag of ours, or nothing.
QString plainTag(const QString &inside)
{
    QString name = inside.section(QLatin1Char(' '), 0, 0, QString::SectionSkipEmpty).toLower();
    const bool closes = name.startsWith(QLatin1Char('/'));
    name.remove(QLatin1Char('/'));
    const bool known = std::any_of(std::begin(plainTags), std::end(plainTags),
                                   [&name](const char *tag) { return name == QLatin1String(tag); });
    return known ? QLatin1String(closes ? "</" : "<") + name + QLatin1Char('>') : QString();
}

/// The http or https address of a link's opening tag; empty for any other tag or address.
QString addressOfLink(const QString &inside)
{
    static const QRegularExpression link(
        QStringLiteral("^\\s*a\\s(?:.*\\s)?href\\s*=\\s*[\"']?(https?://[-A-Za-z0-9._~:/?#@!$*+,;=%&]+)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    return link.match(inside).captured(1);
}

bool endsLink(const QString &inside)
{
    return inside.trimmed().compare(QLatin1String("/a"), Qt::CaseInsensitive) == 0;
}

} // namespace

QString noticeText(const QString &html)
{
    const QString source = html.size() > longestNotice ? html.left(longestNotice) + QChar(0x2026) : html;
    QString text;
    QString address; // of the link that is open
    qsizetype at = 0;
    for (qsizetype open = source.indexOf(QLatin1Char('<')); open >= 0; open = source.indexOf(QLatin1Char('<'), at)) {
        text += QStringView(source).mid(at, open - at);
        const qsizetype close = source.indexOf(QLatin1Char('>'), open);
        if (close < 0) {
            text += QLatin1String("&lt;");
            at = open + 1;
        } else {
            const QString inside = source.mid(open + 1, close - open - 1);
            // Behind the words of the link, so that whoever clicks sees where it leads.
            if (!address.isEmpty() && endsLink(inside))
                text += QLatin1String(" (") + std::exchange(address, QString()) + QLatin1Char(')');
            else if (address.isEmpty())
                address = addressOfLink(inside);
            text += plainTag(inside);
            at = close + 1;
        }
    }
    text += QStringView(source).mid(at);
    return text;
}
