// "status --watch": in a pipe, as JSON, on a terminal, and how it ends.
#include "cliprocess.h"

#include "waitfor.h"

#include <QElapsedTimer>
#include <QJsonObject>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

using testing::HasSubstr;

namespace {

using CliWatch = CliFixture;

/// Output until it holds `text` so many times.
QByteArray readUntil(QProcess &process, const char *text, int times)
{
    QByteArray output;
    while (output.count(text) < times && process.waitForReadyRead(20000))
        output += process.readAllStandardOutput();
    return output;
}

} // namespace

TEST_F(CliWatch, PipeGetsBlocksThatABlankLineEnds)
{
    RunningOnDrive process({"status", "--watch"});
    const QByteArray first = readUntil(process, "\n\n", 1);
    EXPECT_THAT(first.toStdString(), HasSubstr("HV bus voltage  48.0 VDC\n"));
    bus().set(DriveAddress, 950, 3600);
    const QByteArray later = readUntil(process, "\n\n", 2);
    EXPECT_THAT(later.toStdString(), HasSubstr("HV bus voltage  36.0 VDC\n"));
    sendSignal(process);
    good(finish(process), testing::_, "");
    for (const QString &block : QString::fromUtf8(first + later).split("\n\n", Qt::SkipEmptyParts))
        EXPECT_TRUE(block.startsWith("Connection\tConnected\n")) << block.toStdString();
}

TEST_F(CliWatch, JsonIsOneObjectALine)
{
    RunningOnDrive process({"status", "--watch", "--json"});
    const QByteArray output = readUntil(process, "\n", 3);
    sendSignal(process, SIGTERM);
    EXPECT_EQ(finish(process).status, 0);
    for (const QString &line : QString::fromUtf8(output).split('\n', Qt::SkipEmptyParts))
        EXPECT_EQ(QJsonDocument::fromJson(line.toUtf8()).object()["model"], "Tarnwell Devices KETA");
}

TEST_F(CliWatch, TerminalIsRedrawnInPlaceAndGivenBack)
{
    sim::PseudoTerminal terminal;
    ASSERT_EQ(terminal.open(), "");
    QProcess process;
    process.setStandardOutputFile(QString::fromStdString(terminal.name()));
    start(process, toDrive({"status", "--watch"}));
    std::string shown;
    const auto take = [&] {
        shown += shownOn(terminal);
        return QString::fromStdString(shown).count("\x1b[H") >= 3; // draws
    };
    EXPECT_TRUE(waitFor(take, 20000));
    sendSignal(process);
    good(finish(process));
    take();
    EXPECT_THAT(shown, HasSubstr("\x1b[?1049h\x1b[?25l"));
    EXPECT_THAT(shown, HasSubstr("\x1b[?25h\x1b[?1049l"));
}

TEST_F(CliWatch, AReaderThatHasStoppedDoesNotKeepItFromEnding)
{
    for (const int count : {1, 2}) {
        int ends[2];
        ASSERT_EQ(pipe(ends), 0);
        fcntl(ends[0], F_SETPIPE_SZ, 4096); // a few reports fill it
        QProcess process;
        process.setStandardOutputFile(QString("/proc/%1/fd/%2").arg(getpid()).arg(ends[1]));
        start(process, toDrive({"status", "--watch", "--json"}));
        int waiting = 0;
        for (int before = -1; before != waiting || waiting == 0;) {
            before = waiting;
            process.waitForFinished(1000); // three polls: when nothing is added to what waits, it is stuck
            ioctl(ends[0], FIONREAD, &waiting);
        }
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < count; ++i) {
            sendSignal(process, i == 0 ? SIGINT : SIGTERM); // two of a kind may be taken for one
            process.waitForFinished(200);
        }
        ASSERT_TRUE(process.state() == QProcess::NotRunning || process.waitForFinished(20000));
        EXPECT_LT(timer.elapsed(), count == 1 ? 10000 : 1900);
        close(ends[0]);
        close(ends[1]);
    }
}

TEST_F(CliWatch, LostLineAndClosedPipeEndIt)
{
    RunningOnDrive process({"status", "--watch"});
    readUntil(process, "\n\n", 1);
    bus().unplug();
    failed(finish(process), HasSubstr("The drive's state could not be read.\n"));

    ASSERT_EQ(bus().plugIn(), "");
    QProcess closed;
    closed.start("/bin/sh",
                 {"-c", "'" VELBRIN_BINARY_DIR "/bin/velbrin-cli' --port COM1 --node 5 status --watch | head -1"});
    EXPECT_EQ(finish(closed).out, "Connection\tConnected\n");
}
