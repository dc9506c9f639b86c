#include "initext.h"

#include <cstring>

namespace {

constexpr char escapeNames[] = "abfnrtv";
constexpr char escapeCodes[] = "\a\b\f\n\r\t\v";

int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return 99;
}

/// Appends what the escape sequence stands for, whose letter is at `at`; returns the position of its last character.
int unescape(const QByteArray &raw, int at, QString *text)
{
    const char letter = raw.at(at);
    const int base = letter == 'x' ? 16 : 8;
    int next = letter == 'x' ? at + 1 : at;
    if (letter == 'x' || digitValue(letter) < base) {
        ushort code = 0;
        while (next < raw.size() && digitValue(raw.at(next)) < base)
            code = static_cast<ushort>(code * base + digitValue(raw.at(next++)));
        text->append(QChar(code));
        return next - 1;
    }
    const char *name = letter != '\0' ? std::strchr(escapeNames, letter) : nullptr;
    text->append(QLatin1Char(name ? escapeCodes[name - escapeNames] : letter));
    return at;
}

QString parseValue(const QByteArray &raw)
{
    QString text;
    int kept = 0; // blanks at the end count only inside quotes
    bool quoted = false;
    for (int i = 0; i < raw.size(); ++i) {
        const char c = raw.at(i);
        if (c == ';' && !quoted)
            break;
        if (c == '"') {
            quoted = !quoted;
        } else if (c == '\\' && i + 1 < raw.size()) {
            i = unescape(raw, i + 1, &text);
        } else {
            text.append(QLatin1Char(c));
            if (!quoted && (c == ' ' || c == '\t'))
                continue;
        }
        kept = text.size();
    }
    text.truncate(kept);
    // A leading "@" announces a stored object; a string that really begins with one has it doubled.
    if (text.startsWith(QLatin1String("@@")))
        text.remove(0, 1);
    return text;
}

QString parseKey(const QByteArray &raw)
{
    return QString::fromLatin1(QByteArray::fromPercentEncoding(raw)).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

bool isPlain(char16_t c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-' ||
           c == '.';
}

} // namespace

bool parseIniText(const QByteArray &text, IniValues *values)
{
    bool wellFormed = true;
    QString prefix;
    int next = 0;
    const int start = text.startsWith("\xEF\xBB\xBF") ? 3 : 0; // some editors put a byte order mark in front
    for (int begin = start; begin < text.size(); begin = next + 1) {
        next = begin;
        while (next < text.size() && text.at(next) != '\n' && text.at(next) != '\r')
            ++next;
        const QByteArray line = text.mid(begin, next - begin).trimmed();
        if (line.isEmpty() || line.startsWith(';') || line.startsWith('#'))
            continue;
        const int equals = line.indexOf('=');
        if (line.startsWith('[')) {
            const int end = line.indexOf(']');
            wellFormed = wellFormed && end > 0;
            prefix = parseKey(line.mid(1, end > 0 ? end - 1 : -1).trimmed()) + QLatin1Char('/');
        } else if (equals > 0) {
            values->insert(prefix + parseKey(line.left(equals).trimmed()), parseValue(line.mid(equals + 1).trimmed()));
        } else {
            wellFormed = false;
        }
    }
    return wellFormed;
}

QString iniValueIgnoringCase(const IniValues &values, const QString &path)
{
    if (values.contains(path))
        return values.value(path);
    for (auto it = values.begin(); it != values.end(); ++it) {
        if (it.key().compare(path, Qt::CaseInsensitive) == 0)
            return it.value();
    }
    return QString();
}

QByteArray iniString(const QString &text)
{
    QByteArray escaped;
    bool plain = true;
    bool afterHex = false;
    if (text.startsWith(QLatin1Char('@')))
        escaped += '@';
    for (const QChar c : text) {
        const ushort code = c.unicode();
        plain = plain && isPlain(code);
        // A digit right behind a hexadecimal escape would be read as a part of it.
        const bool hex = code < 0x20 || code > 0x7e || (afterHex && digitValue(c.toLatin1()) < 16);
        if (hex)
            escaped += "\\x" + QByteArray::number(code, 16);
        else if (code == '"' || code == '\\')
            escaped += QByteArray("\\") + static_cast<char>(code);
        else
            escaped += static_cast<char>(code);
        afterHex = hex;
    }
    return plain ? escaped : '"' + escaped + '"';
}
