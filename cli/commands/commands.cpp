#include "commands.h"

#include <algorithm>

const QList<Command> &commandTable()
{
    static const QList<Command> table =
        settingsCommands() + statusCommands() + motionCommands() + captureCommands() + firmwareCommands();
    return table;
}

const Command *findCommand(const QString &name)
{
    const QList<Command> &table = commandTable();
    const auto found = std::find_if(table.cbegin(), table.cend(),
                                    [&name](const Command &command) { return name == QLatin1String(command.name); });
    return found == table.cend() ? nullptr : &*found;
}

const Option *findOption(const Command &command, const QString &name)
{
    const auto found = std::find_if(command.options.cbegin(), command.options.cend(),
                                    [&name](const Option &option) { return name == QLatin1String(option.name); });
    return found == command.options.cend() ? nullptr : &*found;
}
