/// \file
/// Back-and-forth moves of the virtual drive, as its recorder sees them.
#ifndef VELBRIN_TESTS_RECORDEDMOVE_H
#define VELBRIN_TESTS_RECORDEDMOVE_H

#include "capture.h"
#include "registers.h"
#include "virtualdrive.h"
#include "withvalues.h"

#include <map>

struct Move
{
    const char *profile = "keta";
    int counts = 1900;       ///< forth and back
    int holdCycles = 400;    ///< at each end
    int divider = 7;         ///< of the recorder: 7 is 2500 Hz on Keta
    double loadTorque = 0.0; ///< Nm
    std::map<int, int> settings = {};
    sim::Machine machine = {};
    bool returns = true;
    bool withSetpoint = false; ///< the position setpoint instead of the torque achieved
};

/// Torque achieved and setpoint, position achieved.
inline CaptureRecord recordMove(const Move &move)
{
    sim::VirtualDrive drive(*sim::findProfile(move.profile), 5, move.machine);
    for (const auto &[address, value] : move.settings)
        drive.write(address, value);
    drive.axis().inputs().loadTorque = move.loadTorque;
    drive.write(sim::reg::SoftEnable, 1);
    drive.advanceCycles(1000);
    drive.write(sim::reg::RecorderSources, 0x2 | (move.withSetpoint ? 0x20 : 0x4) | 0x40);
    drive.write(sim::reg::RecorderDivider, move.divider);
    drive.write(sim::reg::RecorderState, 4); // at once
    bool isForth = false;
    for (int cycle = 0; drive.read(sim::reg::RecorderState) != 0; ++cycle) {
        if (cycle % move.holdCycles == 10 && (move.returns || !isForth)) {
            isForth = !isForth;
            drive.write(sim::reg::SetpointAbsolute, isForth ? move.counts : 0);
        }
        drive.advanceCycles(1);
    }

    CaptureRecord capture;
    capture.samplePeriod = (move.divider + 1.0) / drive.profile().recorderRate;
    capture.channels = {channelOf("torqueref"), channelOf(move.withSetpoint ? "posreference" : "torquemeas"),
                        channelOf("posmeas")};
    for (CaptureData &channel : capture.channels)
        channel.scale = channel.key.startsWith("torque") ? 1.0 / 560 : 1.0;
    for (int word = 0; word < sim::Recorder::words; ++word) {
        CaptureData &channel = capture.channels[word % 3];
        drive.write(sim::reg::RecorderAddress, word);
        const double value = drive.read(sim::reg::RecorderWord) * channel.scale;
        channel.samples.append({channel.samples.size() * capture.samplePeriod, value});
    }
    capture.settings = withValues({}, {{"MMC", drive.read(sim::reg::PeakCurrent) / 1000.0}});
    return capture;
}

#endif
