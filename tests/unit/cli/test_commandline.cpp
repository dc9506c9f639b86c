// What is refused before anything is opened, and the help.
#include "commandparser.h"

#include "commands.h"

#include "printqt.h"

#include <QDir>

#include <gmock/gmock.h>

using testing::HasSubstr;

namespace {

CommandLine parse(const QString &words)
{
    return parseCommandLine(QStringList("velbrin-cli") + words.split(' ', Qt::SkipEmptyParts));
}

} // namespace

TEST(CommandLine, WhatMakesNoSenseIsRefusedWithAReason)
{
    const QString drive = "--port COM1 ", capture = drive + "capture --channels posmeas --csv a ";
    const std::pair<QString, const char *> wrong[] = {
        {"", "Either --port NAME or --virtual-drive is needed."},
        {drive + "--virtual-drive scan", "Either --port NAME or --virtual-drive is needed."},
        {"--port COM1", "There is no command."},
        {drive + "format", "There is no command \"format\"."},
        {drive + "--fast", "Unknown option --fast."},
        {drive + "scan --fast", "\"scan\" does not take --fast."},
        {drive + "--node 0 read", "--node takes a bus address from 1 to 255."},
        {drive + "--node x read", "--node takes a bus address from 1 to 255."},
        {drive + "read --to-flash", "\"read\" does not take --to-flash."},
        {drive + "read KVX", "There is no setting named \"KVX\"."},
        {drive + "write", "Usage: velbrin-cli ... write NAME=VALUE... [--to-flash]"},
        {drive + "write KVP", "\"KVP\" is not of the form NAME=VALUE with a number."},
        {drive + "write KVP=1 KVP=2", "KVP is given twice."},
        {drive + "write kvp=1", "There is no setting named \"kvp\"."},
        {drive + "save", "Usage: velbrin-cli ... save FILE.drc"},
        {drive + "load a.drc b.drc", "Usage: velbrin-cli ... load FILE.drc [--to-flash]"},
        {"--virtual-drive=kat scan", "\"kat\""},
        {"--virtual-drive=keta:rubber scan", "\"rubber\""},
        {drive + "--port COM2 scan", "--port is given twice."},
        {"--port", "--port"},
        {"--port --json scan", "--port needs a value."},
        {"--port= scan", "--port needs a value."}, // not the next word
        {drive + "--json=yes scan", "--json takes no value."},
        {drive + "--pause-scale 2 scan", "--pause-scale takes a factor from 0 to 1."},
        {drive + "setpoint", "Usage: velbrin-cli ... setpoint VALUE [--incremental]"},
        {drive + "setpoint 1e3", "\"1e3\" is no whole number"},
        {drive + "setpoint -536870913", "\"-536870913\" is no whole number"},
        {drive + "home --time-out soon", "--time-out takes seconds"},
        {"firmware-info", "Usage: velbrin-cli ... firmware-info FILE.tdf"},
        {drive + "capture --csv a", "--channels is needed. The channels are: torqueref, torquemeas, "},
        {drive + "capture --channels posmeas", "--csv FILE, --html FILE or --json is needed."},
        {drive + "capture --channels posmeas,speed --csv a", "There is no channel \"speed\". The channels are: "},
        {capture + "--trigger fall", "--trigger takes rise, change, fault or now."},
        {capture + "--rate 0", "--rate takes Hz"},
        {capture + "--rate nan", "--rate takes Hz"},
        {capture + "--step 1.5", "--step takes a whole number"},
        {capture + "--step 536870912", "--step takes a whole number"},
        {capture + "--step 1 --stimulus 1,1,1,1", "not both"},
        {capture + "--stimulus 1,1,1", "--stimulus takes T1,D1,T2,D2"},
        {capture + "--stimulus 1,0.01,1,1", "--stimulus takes T1,D1,T2,D2"},
        {capture + "--stimulus 2097152,1,1,1", "--stimulus takes T1,D1,T2,D2"},
        {capture + "--incremental", "--incremental goes with --step."},
        {capture + "--html a", "name the same file"},
        {capture + "--time-out 0", "--time-out takes seconds"},
        {capture + "--format tabs", "--format takes semicolon or comma."},
        {drive + "capture --channels posmeas --html a --format comma", "--format goes with --csv."},
        {drive + "report", "Either a report is written to FILE.html, or one is checked"},
        {"report a.html --verify b.html", "Either a report is written to FILE.html, or one is checked"},
        {drive + "report a.html --note KVX=why", "There is no setting named \"KVX\"."},
        {drive + "report a.html --note KVP", "--note takes NAME=TEXT."},
        {drive + "report a.html --time-out 5", "go with --stop-test."},
        {drive + "report a.html --stop-test --stop-seconds 61", "--stop-seconds takes seconds"},
    };
    for (const auto &[words, reason] : wrong) {
        const CommandLine line = parse(words);
        EXPECT_THAT(line.problem.toStdString(), HasSubstr(reason)) << words.toStdString();
        EXPECT_EQ(line.answer, "");
    }
}

TEST(CommandLine, OptionsStandBeforeAndAfterTheCommand)
{
    const CommandLine line = parse("--node=5 setpoint --port COM1 -30 --incremental --json");
    EXPECT_EQ(line.problem, "");
    EXPECT_EQ(line.command, "setpoint");
    EXPECT_EQ(line.arguments, QStringList("-30"));
    EXPECT_EQ(line.port, "COM1");
    EXPECT_EQ(line.node, 5);
    EXPECT_TRUE(line.json && line.has("incremental"));

    // An optional value never is the next word, a file may be called as a command is, names become absolute.
    const CommandLine save = parse("--virtual-drive save status");
    EXPECT_EQ(save.problem, "");
    EXPECT_EQ(save.virtualDrives, "keta");
    EXPECT_EQ(save.command, "save");
    EXPECT_EQ(save.arguments, QStringList(QDir::current().filePath("status")));
    EXPECT_EQ(parse("--virtual-drive=torva:noise@7 scan").virtualDrives, "torva:noise@7");

    const CommandLine report = parse("--port COM1 report r.html --note KVP=a=b --note KVI= --capture 1 --capture 2");
    EXPECT_EQ(report.problem, "");
    EXPECT_EQ(report.values("note"), QStringList({"KVP=a=b", "KVI="}));
    EXPECT_EQ(report.values("capture"), QStringList({QDir::current().filePath("1"), QDir::current().filePath("2")}));
    EXPECT_EQ(parse("report --verify r.html").problem, "") << "needs no drive";
}

TEST(CommandLine, HelpNamesEveryCommandAndAllTheirOptions)
{
    const QString help = parse("--help").answer;
    for (const Command &command : commandTable()) {
        EXPECT_THAT(help.toStdString(), HasSubstr(std::string("\n  ") + command.name + " "));
        const QString own = parse(QString("%1 -h").arg(command.name)).answer;
        EXPECT_TRUE(own.startsWith(QString("Usage: velbrin-cli ... ") + command.name)) << own.toStdString();
        EXPECT_GT(own.split('\n').value(2).size(), 20) << "what it does";
        for (const Option &option : command.options)
            EXPECT_THAT(own.toStdString(), HasSubstr(std::string("\n  --") + option.name));
        for (const QString &line : (own + help).split('\n'))
            EXPECT_LT(line.size(), 120) << line.toStdString();
    }
    EXPECT_FALSE(help.contains("pause-scale"));
    EXPECT_EQ(parse("-v scan").answer, "velbrin-cli 1.9.0\n");
}
