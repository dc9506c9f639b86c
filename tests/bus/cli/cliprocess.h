/// \file
/// The real velbrin-cli, run against the virtual bus of the test.
#ifndef VELBRIN_TESTS_CLIPROCESS_H
#define VELBRIN_TESTS_CLIPROCESS_H

#include "virtualbusfixture.h"

#include "printqt.h"
#include "pseudoterminal.h"

#include <QJsonDocument>
#include <QProcess>
#include <QStringList>
#include <csignal>
#include <gmock/gmock.h>
#include <optional>

/// What a run came to. `status` is -1 when it crashed or did not end.
struct Ran
{
    int status = -1;
    QString out;
    QString err;

    QStringList lines() const { return out.split(QLatin1Char('\n'), Qt::SkipEmptyParts); }
    QJsonDocument json() const { return QJsonDocument::fromJson(out.toUtf8()); }
};

inline Ran finish(QProcess &process)
{
    Ran ran;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
        ran.status = process.exitCode();
    ran.out = QString::fromUtf8(process.readAllStandardOutput());
    ran.err = QString::fromUtf8(process.readAllStandardError());
    return ran;
}

inline void start(QProcess &process, const QStringList &arguments)
{
    process.start(QStringLiteral(VELBRIN_BINARY_DIR "/bin/velbrin-cli"), arguments);
    EXPECT_TRUE(process.waitForStarted()) << qPrintable(process.errorString());
}

inline Ran run(const QStringList &arguments)
{
    QProcess process;
    start(process, arguments);
    return finish(process);
}

/// With the fixture's bus and its drive.
inline QStringList toDrive(const QStringList &arguments)
{
    return QStringList{"--port", VirtualBusFixture::port(), "--node", "5"} + arguments;
}
inline Ran onDrive(const QStringList &arguments)
{
    return run(toDrive(arguments));
}
/// The same, running while the test goes on.
struct RunningOnDrive : QProcess
{
    explicit RunningOnDrive(const QStringList &arguments) { ::start(*this, toDrive(arguments)); }
};

using Text = testing::Matcher<std::string>;

/// A run that has to have ended with this status, these results, and this on standard error.
inline Ran ended(int status, const Ran &ran, const Text &results = testing::_, const Text &says = testing::_,
                 int line = __builtin_LINE())
{
    EXPECT_EQ(ran.status, status) << "line " << line << ": " << ran.err.toStdString();
    EXPECT_THAT(ran.out.toStdString(), results) << "line " << line;
    EXPECT_THAT(ran.err.toStdString(), says) << "line " << line;
    return ran;
}
inline Ran good(const Ran &ran, const Text &results = testing::_, const Text &says = testing::_,
                int line = __builtin_LINE())
{
    return ended(0, ran, results, says, line);
}
inline Ran failed(const Ran &ran, const Text &says, const Text &results = testing::_, int line = __builtin_LINE())
{
    return ended(1, ran, results, says, line);
}

/// As Ctrl+C does, or a service manager.
inline void sendSignal(const QProcess &process, int signal = SIGINT)
{
    ASSERT_GT(process.processId(), 0);
    kill(static_cast<pid_t>(process.processId()), signal);
}

// Registers, bits of the status and the fault register, and payloads: select a register, write a value.
constexpr int faultRegister = 552, statusRegister = 553, setpointInUse = 957, softEnable = 2533;
constexpr int running = 8, trackingFault = 2;
const char *const enablePayload = "89e500000001";
const char *const disablePayload = "89e500000000";
const char *const armForFaultPayload = "939300000003";

class CliFixture : public VirtualBusFixture
{
protected:
    std::vector<std::string> sent() { return payloadsOf(bus().received()); }
    bool isRunning() { return bus().read(DriveAddress, statusRegister) & running; }
    bool waitUntilRunning(bool on = true)
    {
        return bus().waitForRegister(DriveAddress, statusRegister,
                                     [on](int bits) { return bool(bits & running) == on; });
    }
    /// As another master would; false when the drive does not come to run.
    bool enableByHand()
    {
        write(softEnable, 1);
        return waitUntilRunning();
    }
    void write(int reg, int value, int address = DriveAddress)
    {
        bus().withDrive(address, [=](sim::VirtualDrive &drive) { drive.write(reg, value); });
    }
    void refuseWrites(int reg, std::optional<int> value = {})
    {
        bus().withDrive(DriveAddress, [=](sim::VirtualDrive &drive) { drive.refuseWrites(reg, value); });
    }
};

/// What a terminal shows since the last look.
inline std::string shownOn(sim::PseudoTerminal &terminal)
{
    std::string text;
    for (sim::Bytes bytes = terminal.read(); !bytes.empty(); bytes = terminal.read())
        text.append(bytes.begin(), bytes.end());
    return text;
}

#endif
