#include "resimulation.h"

#include <algorithm>
#include <cmath>

namespace {

using Samples = std::vector<double>;

constexpr double roundingNoise = 0.29; ///< RMS of a value that is rounded to whole counts

/// Sampled faster than the drive measures, a position stands for so many samples, each of them late by another time.
std::size_t samplesOfCycle(const AxisRecord &record)
{
    return static_cast<std::size_t>(std::clamp(std::round(1.0 / (record.cycleRate * record.period)), 1.0, 16.0));
}

/// What viscous friction takes off the speed in one sample, half of it before and half of it after (trapezoidal rule).
double slowing(const AxisRecord &record, const AxisFit &fit)
{
    return fit.value[AxisFit::Acceleration] * fit.value[AxisFit::Viscous] * record.period / 2.0;
}

/// Position of every sample of a run, from 0, as the recorded current would have moved the model.
Samples simulated(const AxisRecord &record, const Run &run, const AxisFit &fit, double startSpeed)
{
    const double h = record.period, half = slowing(record, fit);
    const double drag = run.direction > 0 ? fit.value[AxisFit::DragForward] : -fit.value[AxisFit::DragBackward];
    Samples positions;
    double speed = startSpeed, position = 0.0;
    for (std::size_t k = run.begin; k < run.end; ++k) {
        const double before = record.torque[k > 0 ? k - 1 : k], now = record.torque[k];
        const double push = (before + now) / 2.0 - fit.value[AxisFit::DeadTime] * (now - before) / h - drag;
        const double faster = (speed * (1.0 - half) + fit.value[AxisFit::Acceleration] * push * h) / (1.0 + half);
        position += (speed + faster) / 2.0 * h;
        speed = faster;
        positions.push_back(position);
    }
    return positions;
}

/// Takes out what another start speed would have made, as it dies away: the one that fits best.
void fitStartSpeed(Samples &differences, double decay)
{
    double start = 0.0, weight = 0.0, share = 1.0;
    for (const double difference : differences) {
        start += difference * share;
        weight += share * share;
        share *= decay;
    }
    share = weight > 0.0 ? start / weight : 0.0;
    for (double &difference : differences) {
        difference -= share;
        share *= decay;
    }
}

} // namespace

double resimulatedSpeedError(const AxisRecord &record, const std::vector<Run> &runs, const std::vector<double> &speed,
                             const AxisFit &fit)
{
    const std::size_t reach = speedReach(record.period);
    const double half = slowing(record, fit);
    const std::size_t together = samplesOfCycle(record);
    double squares = 0.0, highest = 0.0;
    std::size_t count = 0;
    for (const Run &run : runs) {
        const Samples smooth = speedOf(simulated(record, run, fit, speed[run.begin]), record.period);
        Samples differences;
        for (std::size_t k = reach; k + reach < smooth.size(); ++k) {
            differences.push_back(smooth[k] - speed[run.begin + k]);
            highest = std::max(highest, std::abs(speed[run.begin + k]));
        }
        fitStartSpeed(differences, (1.0 - half) / (1.0 + half));
        for (std::size_t k = 0; k + together <= differences.size(); ++k) {
            double sum = 0.0;
            for (std::size_t i = 0; i < together; ++i)
                sum += differences[k + i];
            squares += sum * sum / double(together * together);
            ++count;
        }
    }
    return count > 0 && highest > 0.0 ? std::sqrt(squares / double(count)) / highest : 1.0;
}

/// A fourth difference takes all motion away and leaves 70 times the square of the noise; the median of its size is
/// 0.6745 of a normal distribution's deviation.
double encoderNoise(const AxisRecord &record)
{
    const Samples &x = record.position;
    const std::size_t step = samplesOfCycle(record);
    Samples sizes;
    for (std::size_t k = 4 * step; k < x.size(); ++k)
        sizes.push_back(
            std::abs(x[k] - 4.0 * x[k - step] + 6.0 * x[k - 2 * step] - 4.0 * x[k - 3 * step] + x[k - 4 * step]));
    if (sizes.empty())
        return roundingNoise;
    const auto middle = sizes.begin() + static_cast<std::ptrdiff_t>(sizes.size() / 2);
    std::nth_element(sizes.begin(), middle, sizes.end());
    return std::max(roundingNoise, *middle / (0.6745 * std::sqrt(70.0)));
}
