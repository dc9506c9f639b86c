#include "plaintext.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace {

QRegularExpression expression(const char *pattern)
{
    return QRegularExpression(QLatin1String(pattern), QRegularExpression::CaseInsensitiveOption |
                                                          QRegularExpression::DotMatchesEverythingOption);
}

/// Replaces every match by what `replacement` makes of it.
template <typename Replacement>
QString replaceEach(const QString &text, const QRegularExpression &what, Replacement replacement)
{
    QString result;
    qsizetype end = 0;
    for (auto matches = what.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        result += QStringView(text).mid(end, match.capturedStart() - end);
        result += replacement(match);
        end = match.capturedEnd();
    }
    result += QStringView(text).mid(end);
    return result;
}

QString linkWithAddress(const QRegularExpressionMatch &link)
{
    const QString address = link.captured(1);
    const QString text = link.captured(2);
    if (text.contains(address))
        return text;
    const QString inBrackets = QLatin1Char('(') + address + QLatin1Char(')');
    return text == QLatin1String("?") ? inBrackets : text + QLatin1Char(' ') + inBrackets;
}

QString entityCharacter(const QRegularExpressionMatch &entity)
{
    static const QHash<QString, QString> names = {
        {"nbsp", " "}, {"amp", "&"}, {"lt", "<"}, {"gt", ">"}, {"quot", "\""}, {"deg", "°"}, {"plusmn", "±"},
    };
    const QString name = entity.captured(1);
    if (!name.startsWith(QLatin1Char('#')))
        return names.value(name.toLower(), entity.captured(0));
    const char32_t code = QStringView(name).mid(1).toUInt();
    return code == 0 ? entity.captured(0) : QString::fromUcs4(&code, 1);
}

} // namespace

QString plainText(const QString &html)
{
    static const QRegularExpression spaces = expression("\\s+");
    static const QRegularExpression link =
        expression("<a\\s[^>]*href\\s*=\\s*[\"']?([^\"'\\s>]*)[\"']?[^>]*>(.*?)</a>");
    static const QRegularExpression lineBreak = expression("<br\\s*/?>|</?p\\b[^>]*>");
    static const QRegularExpression tag = expression("</?[a-z][^<>]*>");
    static const QRegularExpression entity = expression("&(#\\d+|\\w+);");

    QString text = html;
    text.replace(spaces, QStringLiteral(" "));
    text = replaceEach(text, link, linkWithAddress);
    text.replace(lineBreak, QStringLiteral("\n"));
    text.remove(tag);
    text = replaceEach(text, entity, entityCharacter);
    // A file's text must not steer the terminal, nor turn round the order in which it is read.
    const auto steers = [](QChar c) {
        return (c.category() == QChar::Other_Control && c != u'\n') || c.category() == QChar::Other_Format;
    };
    std::replace_if(text.begin(), text.end(), steers, QChar(u'?'));
    QStringList lines;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        if (!line.trimmed().isEmpty())
            lines.append(line.trimmed());
    }
    return lines.join(QLatin1Char('\n'));
}
