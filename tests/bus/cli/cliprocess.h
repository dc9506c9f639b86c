/// \file
/// The real velbrin-cli, run against the virtual bus of the test.
#ifndef VELBRIN_TESTS_CLIPROCESS_H
#define VELBRIN_TESTS_CLIPROCESS_H

#include "virtualbusfixture.h"

#include "printqt.h"

#include <QJsonDocument>
#include <QProcess>
#include <QStringList>
#include <algorithm>
#include <csignal>
#include <gmock/gmock.h>

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
    ASSERT_TRUE(process.waitForStarted()) << qPrintable(process.errorString());
}

inline Ran run(const QStringList &arguments)
{
    QProcess process;
    start(process, arguments);
    return finish(process);
}

using Text = testing::Matcher<std::string>;

/// A run that has to have ended well and with these results.
inline Ran good(const Ran &ran, const Text &results = testing::_, int line = __builtin_LINE())
{
    EXPECT_EQ(ran.status, 0) << "line " << line << ": " << ran.err.toStdString();
    EXPECT_THAT(ran.out.toStdString(), results) << "line " << line;
    return ran;
}

/// A run that has to have ended with status 1, this on standard error, and these results.
inline Ran failed(const Ran &ran, const Text &says, const Text &results = testing::_, int line = __builtin_LINE())
{
    EXPECT_EQ(ran.status, 1) << "line " << line << ": " << ran.err.toStdString();
    EXPECT_THAT(ran.err.toStdString(), says) << "line " << line;
    EXPECT_THAT(ran.out.toStdString(), results) << "line " << line;
    return ran;
}

/// As Ctrl+C does, or a service manager.
inline void sendSignal(const QProcess &process, int signal = SIGINT)
{
    ASSERT_GT(process.processId(), 0);
    kill(static_cast<pid_t>(process.processId()), signal);
}

/// Payloads as hexadecimal digits, as one types them from the protocol.
inline std::vector<std::string> payloads(const sim::ReceivedRequests &requests)
{
    std::vector<std::string> result;
    for (const sim::ReceivedRequest &request : requests)
        result.push_back(QByteArray(reinterpret_cast<const char *>(request.packet.payload.data()),
                                    int(request.packet.payload.size()))
                             .toHex()
                             .toStdString());
    return result;
}

/// Until a request with this payload has arrived.
inline bool waitForPayload(const sim::VirtualBus &bus, const std::string &payload)
{
    return bus.waitForReceived([&payload](const sim::ReceivedRequests &requests) {
        const std::vector<std::string> all = payloads(requests);
        return std::find(all.begin(), all.end(), payload) != all.end();
    });
}

// Registers, bits of the status and the fault register, and payloads: select a register, write a value.
constexpr int Faults = 552, Status = 553, Setpoint = 957, SoftEnable = 2533;
constexpr int Running = 8, TrackingFault = 2;
const char *const EnablePayload = "89e500000001";
const char *const DisablePayload = "89e500000000";
const char *const ArmForFaultPayload = "939300000003";

class CliFixture : public VirtualBusFixture
{
protected:
    std::vector<std::string> sent() { return payloads(bus().received()); }
};

/// With the fixture's bus and its drive.
inline Ran onDrive(QStringList arguments)
{
    return run(QStringList{"--port", VirtualBusFixture::port(), "--node", "5"} + arguments);
}

#endif
