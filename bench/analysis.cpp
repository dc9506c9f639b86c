// What the figures of a step, the axis sheet and a capture's file cost, on a full record of the virtual drive.
#include "axissheet.h"
#include "capturefile.h"
#include "capturejson.h"
#include "registers.h"
#include "stepfigures.h"
#include "virtualdrive.h"

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

void time(const char *name, const std::function<void()> &work)
{
    using Clock = std::chrono::steady_clock;
    std::vector<double> milliseconds;
    for (int i = 0; i < runs; ++i) {
        const Clock::time_point start = Clock::now();
        work();
        milliseconds.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    std::printf("%s\t%.2f\t%.2f\n", name, milliseconds[runs / 2], milliseconds.back());
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
    std::printf("of a record of 2000 words\tmedian ms\tworst ms\n");
    time("figures of the step", [&] { stepFigures(capture); });
    time("axis sheet", [&] { axisSheet(capture); });
    time("plot page with its block", [&] { capturePage(capture); });
    time("reading the block", [&] {
        CaptureRecord copy;
        captureFromJson(block, &copy);
    });
    std::printf("block: %.1f KB\n", double(block.size()) / 1000.0);
    return 0;
}
