#include "axisfit.h"

#include <Eigen/Dense>

#include <algorithm>
#include <cmath>

namespace {

constexpr double twoPi = 6.283185307179586;
constexpr double speedWindow = 0.002;    ///< s on either side
constexpr double mostReach = 1e6;        ///< samples; no record has as many
constexpr double slowestShare = 0.03;    ///< of the highest speed
constexpr double slowestSteps = 1.5;     ///< encoder steps in the time over which speed is taken
constexpr double fewestCounts = 100.0;   ///< a run shorter than this is no motion
constexpr Eigen::Index fewestBumps = 12; ///< in all
constexpr std::size_t bumpsInLength = 4; ///< overlap: a bump begins every quarter of its length

constexpr double bumpPower = 4.0;

/// A bump (1 - u^2)^4 for u in [-1, 1] and its first three differences, one entry a sample of its support. Moved over
/// to the bump, a derivative of the position is exact, whatever the encoder's steps.
struct Bump
{
    explicit Bump(std::size_t length);

    /// Average of the derivative of this order of `values`, per sample to that power.
    double derivative(const double *values, int order) const;

    std::vector<double> difference[4];
    double sum = 0.0;
};

Bump::Bump(std::size_t length)
{
    const auto at = [length](double k) {
        const double u = std::clamp(2.0 * k / double(length) - 1.0, -1.0, 1.0);
        return std::pow(1.0 - u * u, bumpPower);
    };
    for (std::size_t i = 0; i <= length; ++i) {
        const double k = double(i);
        difference[0].push_back(at(k));
        difference[1].push_back((at(k + 1) - at(k - 1)) / 2.0);
        difference[2].push_back(at(k + 1) - 2.0 * at(k) + at(k - 1));
        difference[3].push_back((at(k + 2) - 2.0 * at(k + 1) + 2.0 * at(k - 1) - at(k - 2)) / 2.0);
        sum += difference[0].back();
    }
}

double Bump::derivative(const double *values, int order) const
{
    double total = 0.0;
    // From its first value: far from zero the sums would lose digits.
    for (std::size_t i = 0; i < difference[order].size(); ++i)
        total += difference[order][i] * (order == 0 ? values[i] : values[i] - values[0]);
    return (order % 2 == 0 ? total : -total) / sum;
}

/// The model's columns, and one for what is fitted beside it.
using Row = Eigen::Matrix<double, AxisFit::Count + 1, 1>;

struct Equations
{
    std::vector<Row> rows;
    std::vector<double> right;
    bool forward = false, backward = false;
};

/// One equation: averages under a bump that begins at sample `begin` of a run.
void addEquation(Equations &equations, const AxisRecord &record, const Bump &bump, std::size_t begin, const Run &run,
                 Explains explains, const Beside &beside)
{
    const double h = record.period;
    const double *const position = &record.position[begin], *const torque = &record.torque[begin];
    const double acceleration = bump.derivative(position, 2) / (h * h), speed = bump.derivative(position, 1) / h;
    const double current = bump.derivative(torque, 0);
    const double forward = run.direction > 0 ? 1.0 : 0.0, backward = run.direction < 0 ? -1.0 : 0.0;
    Row row;
    if (explains == Explains::Current) {
        row << acceleration, forward, backward, speed, bump.derivative(position, 3) / (h * h * h), 0.0;
        equations.right.push_back(current);
    } else {
        row << current, -forward, -backward, -speed, -bump.derivative(torque, 1) / h, 0.0;
        equations.right.push_back(acceleration);
    }
    if (!beside.values.empty())
        row[AxisFit::Count] = bump.derivative(&beside.values[begin], beside.order);
    equations.rows.push_back(row);
    (run.direction > 0 ? equations.forward : equations.backward) = true;
}

struct Solution
{
    Eigen::VectorXd value;
    Eigen::MatrixXd covariance;
};

/// Least squares; `independent` of the equations count for the covariance. Nothing when the columns do not differ.
std::optional<Solution> solve(Eigen::MatrixXd left, const Eigen::VectorXd &right, double independent)
{
    // The columns differ by many powers of ten.
    const Eigen::VectorXd scale = left.colwise().norm().cwiseMax(1e-300);
    left.array().rowwise() /= scale.transpose().array();
    const Eigen::ColPivHouseholderQR<Eigen::MatrixXd> solver(left);
    if (solver.rank() < left.cols())
        return std::nullopt;
    const Eigen::VectorXd scaled = solver.solve(right);
    const double freedom = std::max(independent - double(left.cols()), 1.0);
    Solution solution;
    solution.value = scaled.cwiseQuotient(scale);
    solution.covariance = (left.transpose() * left).inverse() * ((right - left * scaled).squaredNorm() / freedom);
    solution.covariance.array().rowwise() /= scale.transpose().array();
    solution.covariance.array().colwise() /= scale.array();
    return solution;
}

/// Coefficients of a = A i - A D - A V v - A d i', as the model's parameters, with their errors to first order.
AxisFit fitOfAcceleration(const Solution &solution)
{
    AxisFit fit;
    const Eigen::MatrixXd &covariance = solution.covariance;
    const double gain = solution.value[0];
    fit.value[AxisFit::Acceleration] = gain;
    fit.error[AxisFit::Acceleration] = std::sqrt(covariance(0, 0));
    for (int i = AxisFit::DragForward; i < AxisFit::Count; ++i) {
        const double ratio = solution.value[i] / gain;
        const double variance = covariance(i, i) - 2.0 * ratio * covariance(0, i) + ratio * ratio * covariance(0, 0);
        fit.value[i] = ratio;
        fit.error[i] = std::sqrt(std::max(variance, 0.0)) / std::abs(gain);
    }
    fit.dragCovariance = covariance(AxisFit::DragForward, AxisFit::DragBackward) / (gain * gain);
    if (solution.value.size() > AxisFit::Count) {
        fit.beside = solution.value[AxisFit::Count];
        fit.besideError = std::sqrt(covariance(AxisFit::Count, AxisFit::Count));
    }
    return fit;
}

/// Coefficients of i = a / A + D + V v + d/A a', as the model's parameters.
AxisFit fitOfCurrent(const Solution &solution)
{
    AxisFit fit;
    for (int i = 0; i < AxisFit::Count; ++i) {
        fit.value[i] = solution.value[i];
        fit.error[i] = std::sqrt(solution.covariance(i, i));
    }
    const double gain = 1.0 / solution.value[0];
    fit.value[AxisFit::Acceleration] = gain;
    fit.error[AxisFit::Acceleration] *= gain * gain;
    fit.value[AxisFit::DeadTime] *= gain;
    fit.error[AxisFit::DeadTime] *= std::abs(gain);
    fit.dragCovariance = solution.covariance(AxisFit::DragForward, AxisFit::DragBackward);
    return fit;
}

} // namespace

std::size_t speedReach(double period)
{
    return static_cast<std::size_t>(std::clamp(std::ceil(speedWindow / period), 1.0, mostReach));
}

std::vector<double> speedOf(const std::vector<double> &position, double period)
{
    const std::size_t reach = speedReach(period);
    std::vector<double> speed(position.size(), 0.0);
    for (std::size_t k = reach; k + reach < position.size(); ++k)
        speed[k] = (position[k + reach] - position[k - reach]) / (2.0 * double(reach) * period);
    return speed;
}

std::vector<Run> runsOf(const std::vector<double> &speed, double period)
{
    double highest = 0.0;
    for (const double value : speed)
        highest = std::max(highest, std::abs(value));
    const double step = 1.0 / (2.0 * double(speedReach(period)) * period);
    const double slowest = std::max(slowestShare * highest, slowestSteps * step);
    const auto directionOf = [slowest](double value) { return value > slowest ? 1 : value < -slowest ? -1 : 0; };
    std::vector<Run> runs;
    for (std::size_t begin = 0; begin < speed.size();) {
        const int direction = directionOf(speed[begin]);
        std::size_t end = begin + 1;
        double counts = 0.0;
        for (; end < speed.size() && directionOf(speed[end]) == direction; ++end)
            counts += std::abs(speed[end]) * period;
        if (direction != 0 && counts >= fewestCounts)
            runs.push_back({begin, end, direction});
        begin = end;
    }
    return runs;
}

Beside compliance(const AxisRecord &record)
{
    return {record.torque, 2};
}

Beside place(const AxisRecord &record, const std::vector<Run> &runs)
{
    std::vector<double> distance(record.position.size(), 0.0);
    for (const Run &run : runs) {
        for (std::size_t k = run.begin; k < run.end; ++k)
            distance[k] = record.position[k] - record.position[run.begin];
    }
    return {distance, 0};
}

Beside swingingLoad(const AxisRecord &record, double hertz)
{
    // Exact from sample to sample while the motor stands; it moves little in between.
    const double angle = twoPi * hertz * record.period, cosine = std::cos(angle), sine = std::sin(angle);
    std::vector<double> lags;
    double lag = 0.0, quarter = 0.0; // the load's distance behind the motor, and its speed over the angular frequency
    for (std::size_t k = 0; k < record.position.size(); ++k) {
        lag += k > 0 ? record.position[k] - record.position[k - 1] : 0.0;
        lags.push_back(lag * twoPi * hertz * twoPi * hertz);
        const double next = lag * cosine - quarter * sine;
        quarter = quarter * cosine + lag * sine;
        lag = next;
    }
    return {lags, 0};
}

std::optional<AxisFit> fitAxis(const AxisRecord &record, const std::vector<Run> &runs, std::size_t length,
                               Explains explains, const Beside &beside)
{
    if (length >= record.position.size())
        return std::nullopt;
    const Bump bump(length);
    const std::size_t hop = std::max<std::size_t>(1, length / bumpsInLength);
    Equations equations;
    for (const Run &run : runs) {
        for (std::size_t begin = run.begin; begin + length < run.end; begin += hop)
            addEquation(equations, record, bump, begin, run, explains, beside);
    }
    const auto count = static_cast<Eigen::Index>(equations.rows.size());
    if (count < fewestBumps || !equations.forward || !equations.backward)
        return std::nullopt;
    const int columns = beside.values.empty() ? int(AxisFit::Count) : AxisFit::Count + 1;
    Eigen::MatrixXd left(count, columns);
    for (Eigen::Index i = 0; i < count; ++i)
        left.row(i) = equations.rows[static_cast<std::size_t>(i)].head(columns).transpose();
    // Neighbouring bumps share most of their samples: about two of a length are worth one each.
    const double independent = double(count) * 2.0 / bumpsInLength;
    const std::optional<Solution> solution =
        solve(left, Eigen::VectorXd::Map(equations.right.data(), count), independent);
    if (!solution || solution->value[0] == 0.0)
        return std::nullopt;
    return explains == Explains::Current ? fitOfCurrent(*solution) : fitOfAcceleration(*solution);
}
