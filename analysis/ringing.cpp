#include "ringing.h"

#include <Eigen/Dense>
#include <kissfft/kissfft.hh>

#include <algorithm>
#include <cmath>
#include <complex>

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr std::size_t fewestSamples = 16;
constexpr int fewestHalfWaves = 4;
constexpr double fewestPeriods = 3.0;
constexpr double shareOfPower = 0.5;
constexpr double smallestSteps = 2.0; ///< steps of the encoder
constexpr double smallestShare = 0.1; ///< of the largest deviation
/// The window spreads a pure line over two lines to each side, decay a little further.
constexpr double linesOfPeak = 3.0;

/// What is left when the straight line that fits best is taken away: a slow drift is no swing.
Eigen::VectorXd withoutLine(const std::vector<double> &values)
{
    const auto count = static_cast<Eigen::Index>(values.size());
    Eigen::MatrixXd line(count, 2);
    line.col(0).setOnes();
    line.col(1) = Eigen::VectorXd::LinSpaced(count, -1.0, 1.0);
    const Eigen::VectorXd all = Eigen::VectorXd::Map(values.data(), count);
    return all - line * line.colPivHouseholderQr().solve(all);
}

/// Swings from one side to the other by more than `threshold` on both.
int halfWaves(const Eigen::VectorXd &values, double threshold)
{
    int count = 0, side = 0;
    for (const double value : values) {
        const int here = value > threshold ? 1 : value < -threshold ? -1 : 0;
        if (here != 0 && here != side) {
            ++count;
            side = here;
        }
    }
    return count;
}

/// Power by frequency, of the windowed values with zeros behind them up to `length`.
std::vector<double> powerSpectrum(const Eigen::VectorXd &values, std::size_t length)
{
    const auto count = static_cast<std::size_t>(values.size());
    std::vector<std::complex<double>> in(length), out(length);
    for (std::size_t i = 0; i < count; ++i)
        in[i] = values[static_cast<Eigen::Index>(i)] * 0.5 * (1.0 - std::cos(2.0 * pi * double(i) / double(count)));
    kissfft<double>(length, false).transform(in.data(), out.data());
    std::vector<double> power(length / 2);
    for (std::size_t i = 0; i < power.size(); ++i)
        power[i] = std::norm(out[i]);
    return power;
}

/// A length that is quick to transform, with at least four lines for one of the tail's own.
std::size_t paddedLength(std::size_t count)
{
    std::size_t length = 1;
    while (length < 4 * count)
        length *= 2;
    return length;
}

/// Where the parabola through the logarithms of a line and its two neighbours is highest, in lines beside the middle.
double peakOffset(double left, double middle, double right)
{
    const double tiny = middle * 1e-12;
    const double a = std::log(left + tiny), b = std::log(middle + tiny), c = std::log(right + tiny);
    const double curvature = a - 2.0 * b + c;
    return curvature < 0.0 ? std::clamp(0.5 * (a - c) / curvature, -0.5, 0.5) : 0.0;
}

} // namespace

std::optional<Ringing> findRinging(const std::vector<double> &tail, double period, double resolution)
{
    if (tail.size() < fewestSamples)
        return std::nullopt;
    const Eigen::VectorXd swing = withoutLine(tail);
    const double largest = swing.cwiseAbs().maxCoeff();
    if (halfWaves(swing, std::max(smallestSteps * resolution, smallestShare * largest)) < fewestHalfWaves)
        return std::nullopt;

    const std::size_t length = paddedLength(tail.size());
    const double padding = double(length) / double(tail.size());
    const std::vector<double> power = powerSpectrum(swing, length);
    const auto at = static_cast<std::size_t>(std::max_element(power.begin() + 1, power.end() - 1) - power.begin());
    double near = 0.0, all = 0.0;
    for (std::size_t i = 1; i < power.size(); ++i) {
        all += power[i];
        near += std::abs(double(i) - double(at)) <= linesOfPeak * padding ? power[i] : 0.0;
    }
    const double lines = (double(at) + peakOffset(power[at - 1], power[at], power[at + 1])) / padding;
    if (near < shareOfPower * all || lines < fewestPeriods)
        return std::nullopt;
    const double duration = double(tail.size()) * period;
    return Ringing{lines / duration, 1.0 / duration};
}
