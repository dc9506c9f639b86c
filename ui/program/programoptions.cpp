#include "programoptions.h"

#include "driveprofile.h"
#include "language.h"
#include "version.h"
#include "virtualport.h"

#include <QCommandLineParser>
#include <QDir>
#include <QRegularExpression>

namespace {

/// English in every language, as what the other programs print.
QString tr(const char *text)
{
    return QString::fromUtf8(text);
}

QStringList knownProfiles()
{
    QStringList names;
    for (const sim::DriveProfile &profile : sim::driveProfiles())
        names.append(QLatin1String(profile.name));
    return names;
}

const QString virtualDrive = QStringLiteral("virtual-drive");
const QString port = QStringLiteral("port");
const QString language = QStringLiteral("language");
const QString debugValues = QStringLiteral("debug-values");
const QString tour = QStringLiteral("tour");
const QString help = QStringLiteral("help");
const QString version = QStringLiteral("version");

void describe(QCommandLineParser &parser)
{
    const QStringList profiles = knownProfiles();
    parser.setApplicationDescription(tr("Configures, tunes and starts up Tarnwell servo drives."));
    parser.addOptions({
        {virtualDrive,
         tr("Brings virtual drives up inside the program, on port COM1. Models, separated by commas: %1. With a load: "
            "%2:flexible=45+noise (velbrin-sim --help lists them).")
             .arg(profiles.join(QLatin1String(", ")), profiles.first()),
         QStringLiteral("models")},
        {port, tr("Chooses this serial port at first."), QStringLiteral("name")},
        {language,
         tr("Language of the window: %1. Without it that of the desktop, if it is one of them.")
             .arg(spokenLanguages().join(QLatin1String(", "))),
         QStringLiteral("name")},
        {debugValues, tr("Shows the drive's debug values under the fault register.")},
        {tour,
         tr("Walks through the window by itself, with a test move of the virtual drive, and leaves screenshots in this "
            "folder."),
         QStringLiteral("folder")},
        {{QStringLiteral("h"), help}, tr("Shows this text.")},
        {{QStringLiteral("v"), version}, tr("Shows the version.")},
    });
    parser.addPositionalArgument(QStringLiteral("file"), tr("Settings file to load at first; needs no drive."),
                                 QStringLiteral("[FILE.drc]"));
}

/// The tour enables the drive and moves the axis: never a real one, and never with somebody's settings.
bool isTourSafe(const ProgramOptions &options)
{
    return !options.virtualDrives.isEmpty() && options.port.isEmpty() && options.file.isEmpty();
}

QString problemOf(const QCommandLineParser &parser, const ProgramOptions &options)
{
    if (!options.tourFolder.isEmpty() && !isTourSafe(options))
        return tr("--tour goes with --virtual-drive, and not with --port or a file.");
    const QString drives = parser.isSet(virtualDrive) ? checkVirtualDrives(options.virtualDrives) : QString();
    if (!drives.isEmpty())
        return tr("--virtual-drive: %1. Models: %2.").arg(drives, knownProfiles().join(QLatin1String(", ")));
    if (parser.isSet(language) && !spokenLanguages().contains(options.language))
        return tr("--language: \"%1\" is not known. Languages: %2.")
            .arg(options.language, spokenLanguages().join(QLatin1String(", ")));
    const QStringList files = parser.positionalArguments();
    return files.size() > 1 ? tr("Unexpected argument: %1").arg(files.at(1)) : QString();
}

} // namespace

ProgramOptions parseProgramOptions(QStringList arguments)
{
    // The parser knows no optional values: without one the first model is meant.
    arguments.replaceInStrings(QRegularExpression(QStringLiteral("^--virtual-drive$")),
                               QLatin1String("--virtual-drive=") + knownProfiles().first());
    QCommandLineParser parser;
    describe(parser);
    ProgramOptions options;
    if (!parser.parse(arguments)) {
        options.error = parser.errorText();
        return options;
    }
    if (parser.isSet(help))
        options.text = parser.helpText();
    else if (parser.isSet(version))
        options.text = QStringLiteral("velbrin %1\n").arg(QLatin1String(VELBRIN_VERSION));
    if (!parser.positionalArguments().isEmpty()) // the program works in a folder of its own
        options.file = QDir::current().absoluteFilePath(parser.positionalArguments().constFirst());
    options.port = parser.value(port);
    options.language = parser.value(language);
    options.debugValues = parser.isSet(debugValues);
    options.virtualDrives = parser.value(virtualDrive);
    if (parser.isSet(tour))
        options.tourFolder = QDir::current().absoluteFilePath(parser.value(tour));
    options.error = problemOf(parser, options);
    return options;
}
