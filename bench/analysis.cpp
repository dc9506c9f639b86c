// What the figures of a step, the axis sheet, a capture's file and the report cost, on a full record of the virtual
// drive.
#include "capturejson.h"
#include "catalogue.h"
#include "registers.h"
#include "report.h"
#include "savedpage.h"
#include "virtualdrive.h"

#include <QCryptographicHash>
#include <QJsonDocument>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

constexpr int sources = 0x2 | 0x4 | 0x20 | 0x40; // torque and position, each as commanded and as achieved
constexpr int channelCount = 4;
constexpr int divider = 7;
constexpr int holdCycles = 220;
constexpr int distance = 1900;
constexpr int runs = 50;
constexpr int reportedCaptures = 8;

CaptureRecord record()
{
    sim::VirtualDrive drive(*sim::findProfile("keta"));
    drive.write(sim::reg::SoftEnable, 1);
    drive.advanceCycles(100);
    drive.write(sim::reg::RecorderSources, sources);
    drive.write(sim::reg::RecorderDivider, divider);
    drive.write(sim::reg::RecorderState, 4);
    for (int cycle = 0; drive.read(sim::reg::RecorderState) != 0; ++cycle) {
        if (cycle % holdCycles == 10)
            drive.write(sim::reg::SetpointAbsolute, cycle / holdCycles % 2 == 0 ? distance : 0);
        drive.advanceCycles(1);
    }
    CaptureRecord capture;
    capture.samplePeriod = (divider + 1.0) / drive.profile().recorderRate;
    for (const char *key : {"torqueref", "torquemeas", "posreference", "posmeas"}) {
        CaptureData channel;
        channel.key = channel.name = QString::fromLatin1(key);
        channel.scale = channel.key.startsWith(QLatin1String("torque")) ? 1.0 / 560 : 1.0;
        channel.group = QStringLiteral("Group");
        channel.enabled = true;
        capture.channels.append(channel);
    }
    for (int word = 0; word < sim::Recorder::words; ++word) {
        drive.write(sim::reg::RecorderAddress, word);
        CaptureData &channel = capture.channels[word % channelCount];
        channel.samples.append(
            {channel.samples.size() * capture.samplePeriod, drive.read(sim::reg::RecorderWord) * channel.scale});
    }
    return capture;
}

double medianOf(const std::function<void()> &work, double &worst)
{
    using Clock = std::chrono::steady_clock;
    std::vector<double> milliseconds;
    for (int i = 0; i < runs; ++i) {
        const Clock::time_point start = Clock::now();
        work();
        milliseconds.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    worst = milliseconds.back();
    return milliseconds[runs / 2];
}

/// What the ratios are against: something that any machine does, and that nobody here makes quicker or slower.
double checksumOfAMegabyte()
{
    const QByteArray megabyte(1 << 20, 'x');
    double worst = 0.0;
    return medianOf([&] { QCryptographicHash::hash(megabyte, QCryptographicHash::Sha256); }, worst);
}

void time(const char *name, double reference, const std::function<void()> &work)
{
    double worst = 0.0;
    const double median = medianOf(work, worst);
    std::printf("%s\t%.2f\t%.2f\t%.3f\n", name, median, worst, median / reference);
}

/// A report with `count` captures, of a drive with all its settings.
Report reportOf(const CaptureRecord &capture, int count)
{
    Report report;
    report.drive.type = 11000;
    report.settings = driveParameterCatalogue();
    for (int i = 0; i < count; ++i)
        report.captures.append({QStringLiteral("capture"), capture});
    report.stopTest = capture;
    return report;
}

} // namespace

int main()
{
    const CaptureRecord capture = record();
    if (!axisSheet(capture).isUsable() || !stepFigures(capture).timeTo90.value) {
        std::fprintf(stderr, "the record gives no figures: %s\n", qPrintable(axisSheet(capture).refusal));
        return 1;
    }
    const QByteArray block = QJsonDocument(captureToJson(capture)).toJson(QJsonDocument::Compact);
    const Report report = reportOf(capture, reportedCaptures);
    const double reference = checksumOfAMegabyte();
    std::printf("of a record of 2000 words\tmedian ms\tworst ms\tratio to SHA-256 of 1 MB (%.2f ms)\n", reference);
    time("figures of the step", reference, [&] { stepFigures(capture); });
    time("axis sheet", reference, [&] { axisSheet(capture); });
    time("all figures", reference, [&] { captureFigures(capture); });
    time("saved page with its block", reference, [&] { savedCapturePage(capture, captureFigures(capture)); });
    time("reading the block", reference, [&] {
        CaptureRecord copy;
        captureFromJson(block, &copy);
    });
    time("report with eight captures", reference, [&] { reportPage(report); });
    std::printf("block: %.1f KB\n", double(block.size()) / 1000.0);
    std::printf("report: %.1f KB\n", double(reportPage(report).size()) / 1000.0);
    return 0;
}
