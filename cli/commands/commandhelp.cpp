#include "commandhelp.h"

#include "clitext.h"
#include "commands.h"

namespace {

constexpr int lineWidth = 98;

/// `text` in lines that begin at `column`; the first of them begins with `line`, which is filled up to there.
QString wrapped(QString line, const QString &text, int column)
{
    QString result;
    const QString indent(column, QLatin1Char(' '));
    if (column > 0 && line.size() + 2 > column) {
        result = line + QLatin1Char('\n');
        line.clear();
    }
    line = line.leftJustified(column);
    bool isEmpty = true;
    for (const QString &word : text.simplified().split(QLatin1Char(' '))) {
        if (!isEmpty && line.size() + 1 + word.size() > lineWidth) {
            result += line + QLatin1Char('\n');
            line = indent;
            isEmpty = true;
        }
        line += (isEmpty ? QString() : QStringLiteral(" ")) + word;
        isEmpty = false;
    }
    return result + line + QLatin1Char('\n');
}

/// Paragraphs, which an empty line separates.
QString paragraphs(const QString &text)
{
    QStringList wrappedOnes;
    for (const QString &paragraph : text.split(QLatin1String("\n\n")))
        wrappedOnes.append(wrapped(QString(), paragraph, 0));
    return wrappedOnes.join(QLatin1Char('\n'));
}

QString entry(const QString &head, const QString &text, int column)
{
    return wrapped(QLatin1String("  ") + head, text, column);
}

QString optionsHelp(const QList<Option> &options)
{
    QString text;
    for (const Option &option : options) {
        if (option.help == nullptr)
            continue;
        const QString value = QLatin1String(option.value);
        const QString gap = value.isEmpty() || value.startsWith(QLatin1Char('[')) ? QString() : QStringLiteral(" ");
        text += entry(QLatin1String("--") + QLatin1String(option.name) + gap + value, tr(option.help), 28);
    }
    return text;
}

} // namespace

QString commandUsage(const Command &command)
{
    return (QLatin1String(command.name) + QLatin1Char(' ') + QLatin1String(command.usage)).trimmed();
}

QString programHelp(const QList<Option> &commonOptions)
{
    QString text =
        tr("Usage: velbrin-cli (--port NAME | --virtual-drive[=PROFILES]) [OPTION...] COMMAND\n"
           "       velbrin-cli COMMAND --help\n"
           "\n"
           "Sets up, moves and watches a drive on the Zetabus, for scripts and for benches with many machines.\n"
           "Values are in display units, as in settings files. Results go to standard output, reasons to\n"
           "standard error.\n"
           "\n"
           "Nothing moves and nothing is written to a drive unless the command says so; but a drive moves\n"
           "machines, and software is no safety device: keep the machine's own emergency stop within reach.\n"
           "\n"
           "Commands:\n");
    for (const Command &command : commandTable())
        text += entry(QLatin1String(command.name), tr(command.summary), 18);
    return text + tr("\nOptions:\n") + optionsHelp(commonOptions) +
           tr("\nExit status: 0 done, 1 refused or failed, 2 wrong usage, 3 \"compare\" found a difference.\n");
}

QString commandHelp(const Command &command)
{
    QString text = tr("Usage: velbrin-cli ... %1").arg(commandUsage(command)) + QLatin1String("\n\n") +
                   paragraphs(tr(command.details));
    if (!command.options.isEmpty())
        text += tr("\nOptions:\n") + optionsHelp(command.options);
    return text + tr("\nvelbrin-cli --help has the options that all commands take.\n");
}
