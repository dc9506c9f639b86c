#include "programoptions.h"

#include "driveprofile.h"
#include "version.h"
#include "virtualport.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("main", text);
}

QStringList knownProfiles()
{
    QStringList names;
    for (const sim::DriveProfile &profile : sim::driveProfiles())
        names.append(QLatin1String(profile.name));
    return names;
}

// The tour enables the drive and moves the axis: never a real one, and never with somebody's settings.
bool isTourSafe(const ProgramOptions &options)
{
    return !options.virtualDrives.isEmpty() && options.port.isEmpty() && options.file.isEmpty();
}

} // namespace

ProgramOptions parseProgramOptions(QStringList arguments)
{
    const QStringList profiles = knownProfiles();
    // The parser knows no optional values: without one the first model is meant.
    arguments.replaceInStrings(QRegularExpression(QStringLiteral("^--virtual-drive$")),
                               QLatin1String("--virtual-drive=") + profiles.first());
    const QCommandLineOption virtualDrive(
        QStringLiteral("virtual-drive"),
        tr("Brings virtual drives up inside the program, on port COM1. Models, separated by commas: %1. With a load: "
           "%2:flexible=45+noise (velbrin-sim --help lists them).")
            .arg(profiles.join(QLatin1String(", ")), profiles.first()),
        QStringLiteral("models"));
    const QCommandLineOption port(QStringLiteral("port"), tr("Chooses this serial port at first."),
                                  QStringLiteral("name"));
    const QCommandLineOption debugValues(QStringLiteral("debug-values"),
                                         tr("Shows the drive's debug values under the fault register."));
    const QCommandLineOption tour(
        QStringLiteral("tour"),
        tr("Walks through the window by itself, with a test move of the virtual drive, and leaves screenshots in this "
           "folder."),
        QStringLiteral("folder"));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, tr("Shows this text."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")}, tr("Shows the version."));
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Configures, tunes and starts up Tarnwell servo drives."));
    parser.addOptions({virtualDrive, port, debugValues, tour, help, version});
    parser.addPositionalArgument(QStringLiteral("file"), tr("Settings file to load at first; needs no drive."),
                                 QStringLiteral("[FILE.drc]"));

    ProgramOptions options;
    if (!parser.parse(arguments)) {
        options.error = parser.errorText();
        return options;
    }
    if (parser.isSet(help))
        options.text = parser.helpText();
    else if (parser.isSet(version))
        options.text = QStringLiteral("velbrin %1\n").arg(QLatin1String(VELBRIN_VERSION));
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1)
        options.error = tr("Unexpected argument: %1").arg(files.at(1));
    else if (!files.isEmpty()) // the program works in a folder of its own
        options.file = QDir::current().absoluteFilePath(files.first());
    options.port = parser.value(port);
    options.debugValues = parser.isSet(debugValues);
    if (parser.isSet(tour))
        options.tourFolder = QDir::current().absoluteFilePath(parser.value(tour));
    if (parser.isSet(virtualDrive)) {
        options.virtualDrives = parser.value(virtualDrive);
        const QString error = checkVirtualDrives(options.virtualDrives);
        if (!error.isEmpty())
            options.error = tr("--virtual-drive: %1. Models: %2.").arg(error, profiles.join(QLatin1String(", ")));
    }
    if (!options.tourFolder.isEmpty() && !isTourSafe(options))
        options.error = tr("--tour goes with --virtual-drive, and not with --port or a file.");
    return options;
}
