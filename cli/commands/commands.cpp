#include "commands.h"

#include "commandgroups.h"

#include <algorithm>

const QList<Command> &commandTable()
{
    static const QList<Command> table = settingsCommands() + statusCommands() + motionCommands() + captureCommands() +
                                        reportCommands() + firmwareCommands();
    return table;
}

const Command *findCommand(const QString &name)
{
    const QList<Command> &table = commandTable();
    const auto found = std::find_if(table.cbegin(), table.cend(),
                                    [&name](const Command &command) { return name == QLatin1String(command.name); });
    return found == table.cend() ? nullptr : &*found;
}
