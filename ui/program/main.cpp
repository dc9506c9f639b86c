// The program: command line, the built-in virtual drives, the window, and a clean end.
#include "boxstyle.h"
#include "datafolder.h"
#include "disabledink.h"
#include "enginestart.h"
#include "language.h"
#include "mw.h"
#include "programoptions.h"
#include "quitsignals.h"
#include "tour.h"
#include "utf8locale.h"
#include "virtualport.h"

#include <QApplication>
#include <QDebug>
#include <QLocale>
#include <cstdio>
#include <cstring>

namespace {

constexpr int wrongUsage = 2;

// Help and version are asked for on machines without a display, too.
bool wantsTextOnly(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        for (const char *option : {"--help", "-h", "--version", "-v"}) {
            if (std::strcmp(argv[i], option) == 0)
                return true;
        }
    }
    return false;
}

int failed(const QString &text, int exitCode)
{
    std::fprintf(stderr, "velbrin: %s\n", qPrintable(text));
    return exitCode;
}

} // namespace

int main(int argc, char **argv)
{
    useUtf8();
    if (wantsTextOnly(argc, argv))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    prepareEngine();
    QGuiApplication::setDesktopFileName(QStringLiteral("velbrin")); // where Wayland finds name and icon
    QApplication application(argc, argv);
    const ProgramOptions options = parseProgramOptions(QApplication::arguments());
    if (!options.error.isEmpty())
        return failed(options.error, wrongUsage);
    if (!options.text.isEmpty()) {
        std::fputs(qPrintable(options.text), stdout);
        return 0;
    }
    speak(options.language.isEmpty() ? languageFor(QLocale::system().uiLanguages()) : options.language);
    QuitSignals quitSignals;

    MW::Options window;
    window.file = options.file;
    window.port = options.port;
    window.debugValues = options.debugValues;
    std::unique_ptr<VirtualPort> virtualPort;
    if (options.virtualDrives.isEmpty()) {
        enterDataFolder();
    } else {
        virtualPort = std::make_unique<VirtualPort>(options.virtualDrives, VirtualPort::Pace::RealLine);
        if (!virtualPort->error().isEmpty())
            return failed(virtualPort->error(), EXIT_FAILURE);
        window.virtualPort = VirtualPort::portName();
    }

    Tour tour(options.tourFolder);
    if (!options.tourFolder.isEmpty())
        tour.start(); // before the window, whose disclaimer is its first stop
    MW mainWindow(window);
    QApplication::setStyle(new BoxStyle);
    new DisabledInk(&application);
    mainWindow.show();
    const int status = QApplication::exec();
    return tour.failed() ? EXIT_FAILURE : status;
}
