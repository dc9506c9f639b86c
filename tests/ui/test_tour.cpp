#include "pagetable.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace {

/// Runs the real program; -1 when it crashed or did not end.
int velbrin(const QStringList &arguments, QString *errors = nullptr)
{
    QProcess process;
    process.start(QStringLiteral(VELBRIN_BINARY_DIR "/bin/velbrin"), arguments);
    const bool ended = process.waitForFinished(100000) && process.exitStatus() == QProcess::NormalExit;
    if (errors)
        *errors = QString::fromLocal8Bit(process.readAllStandardError());
    return ended ? process.exitCode() : -1;
}

} // namespace

TEST(Tour, WalksThroughTheWholeWindowAndLeavesAScreenshotOfEveryPage)
{
    QTemporaryDir folder;
    QString errors;
    EXPECT_EQ(velbrin({"--virtual-drive=keta,torva", "--tour", folder.filePath("shots")}, &errors), 0)
        << errors.right(2000).toStdString();
    QList<QImage> seen;
    for (const PageInfo &page : pageTable()) {
        const QImage image(folder.filePath(QStringLiteral("shots/%1.png").arg(page.name)));
        EXPECT_GE(image.width(), 800) << page.name;
        EXPECT_FALSE(seen.contains(image)) << page.name << " looks like another page";
        seen.append(image);
    }
}

TEST(Tour, NeverMovesARealDriveAndSaysWhereItGotStuck)
{
    QString errors;
    EXPECT_EQ(velbrin({"--tour", "shots"}, &errors), 2);
    EXPECT_THAT(errors.toStdString(), testing::HasSubstr("--tour goes with --virtual-drive"));
    EXPECT_EQ(velbrin({"--tour", "shots", "--virtual-drive", "--port", "/dev/ttyUSB0"}), 2);
    EXPECT_EQ(velbrin({"--virtual-drive", "--tour", "/proc/nowhere"}, &errors), 1);
    EXPECT_THAT(errors.toStdString(), testing::HasSubstr("The tour failed at \"make the folder /proc/nowhere\""));
}
