#include "axisfit.h"

#include <Eigen/Dense>

#include <algorithm>
#include <cmath>

namespace {

constexpr double speedWindow = 0.002;    ///< s on either side
constexpr double slowestShare = 0.03;    ///< of the highest speed
constexpr double slowestSteps = 1.5;     ///< encoder steps in the time over which speed is taken
constexpr double fewestCounts = 100.0;   ///< a run shorter than this is no motion
constexpr Eigen::Index fewestBumps = 12; ///< in all
constexpr std::size_t bumpsInLength = 4; ///< overlap: a bump begins every quarter of its length

/// A bump (1 - u^2)^3 for u in [-1, 1] with its differences, one entry a sample of its support.
struct Bump
{
    explicit Bump(std::size_t length);

    std::vector<double> weight, slope, curvature; ///< the latter two per sample and per sample squared
    double sum = 0.0;
};

Bump::Bump(std::size_t length)
{
    const auto at = [length](double k) {
        const double u = std::clamp(2.0 * k / double(length) - 1.0, -1.0, 1.0);
        return std::pow(1.0 - u * u, 3.0);
    };
    for (std::size_t k = 0; k <= length; ++k) {
        const double here = at(double(k)), before = at(double(k) - 1.0), after = at(double(k) + 1.0);
        weight.push_back(here);
        slope.push_back((after - before) / 2.0);
        curvature.push_back(after - 2.0 * here + before);
        sum += here;
    }
}

/// The model's columns, and one for what is fitted beside it.
using Row = Eigen::Matrix<double, AxisFit::Count + 1, 1>;

struct Equations
{
    std::vector<Row> rows;
    std::vector<double> accelerations;
    bool forward = false, backward = false;
};

/// One equation: averages under a bump that begins at sample `begin` of a run.
void addEquation(Equations &equations, const AxisRecord &record, const Bump &bump, std::size_t begin, const Run &run,
                 Beside beside)
{
    const double h = record.period, s = bump.sum;
    double acceleration = 0.0, speed = 0.0, current = 0.0, currentSlope = 0.0, currentCurvature = 0.0, place = 0.0;
    const double origin = record.position[run.begin];
    for (std::size_t k = 0; k < bump.weight.size(); ++k) {
        const double position = record.position[begin + k] - origin, torque = record.torque[begin + k];
        acceleration += bump.curvature[k] * position;
        speed -= bump.slope[k] * position;
        place += bump.weight[k] * position;
        current += bump.weight[k] * torque;
        currentSlope -= bump.slope[k] * torque;
        currentCurvature += bump.curvature[k] * torque;
    }
    const double valueBeside = beside == Beside::Place ? place / s : currentCurvature / (s * h * h);
    Row row;
    row << current / s, run.direction > 0 ? -1.0 : 0.0, run.direction < 0 ? 1.0 : 0.0, -speed / (s * h),
        -currentSlope / (s * h), valueBeside;
    equations.rows.push_back(row);
    equations.accelerations.push_back(acceleration / (s * h * h));
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

/// A fitted coefficient over the first one, with its standard deviation (error propagation to first order).
void setRatio(AxisFit &fit, int parameter, const Solution &solution)
{
    const Eigen::MatrixXd &covariance = solution.covariance;
    const double gain = solution.value[0], ratio = solution.value[parameter] / gain;
    const double variance = covariance(parameter, parameter) - 2.0 * ratio * covariance(0, parameter) +
                            ratio * ratio * covariance(0, 0);
    fit.value[parameter] = ratio;
    fit.error[parameter] = std::sqrt(std::max(variance, 0.0)) / std::abs(gain);
}

} // namespace

std::size_t speedReach(double period)
{
    return std::max<std::size_t>(1, static_cast<std::size_t>(std::ceil(speedWindow / period)));
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

std::optional<AxisFit> fitAxis(const AxisRecord &record, const std::vector<Run> &runs, std::size_t length,
                               Beside beside)
{
    const Bump bump(length);
    const std::size_t hop = std::max<std::size_t>(1, length / bumpsInLength);
    Equations equations;
    for (const Run &run : runs) {
        for (std::size_t begin = run.begin; begin + length < run.end; begin += hop)
            addEquation(equations, record, bump, begin, run, beside);
    }
    const auto count = static_cast<Eigen::Index>(equations.rows.size());
    if (count < fewestBumps || !equations.forward || !equations.backward)
        return std::nullopt;

    const int columns = beside == Beside::Nothing ? int(AxisFit::Count) : AxisFit::Count + 1;
    Eigen::MatrixXd left(count, columns);
    for (Eigen::Index i = 0; i < count; ++i)
        left.row(i) = equations.rows[static_cast<std::size_t>(i)].head(columns).transpose();
    const std::optional<Solution> solution = solve(
        left, Eigen::VectorXd::Map(equations.accelerations.data(), count), double(count) * 2.0 / bumpsInLength);
    if (!solution)
        return std::nullopt;

    AxisFit fit;
    const double gain = solution->value[0];
    fit.value[AxisFit::Acceleration] = gain;
    fit.error[AxisFit::Acceleration] = std::sqrt(solution->covariance(0, 0));
    for (int parameter = AxisFit::DragForward; parameter < AxisFit::Count; ++parameter)
        setRatio(fit, parameter, *solution);
    fit.dragCovariance = solution->covariance(AxisFit::DragForward, AxisFit::DragBackward) / (gain * gain);
    return fit;
}

double resimulatedSpeedError(const AxisRecord &record, const std::vector<Run> &runs, const std::vector<double> &speed,
                             const AxisFit &fit)
{
    const double h = record.period;
    const std::vector<double> &torque = record.torque;
    const std::size_t reach = speedReach(h);
    double squares = 0.0, highest = 0.0;
    std::size_t count = 0;
    for (const Run &run : runs) {
        // Simulated position, from where smoothed speed is taken as it is from the measured one.
        std::vector<double> position;
        double simulated = speed[run.begin], place = 0.0;
        const double drag = run.direction > 0 ? fit.value[AxisFit::DragForward] : -fit.value[AxisFit::DragBackward];
        for (std::size_t k = run.begin; k < run.end; ++k) {
            const double slope = k > 0 ? (torque[k] - torque[k - 1]) / h : 0.0;
            const double mean = k > 0 ? (torque[k] + torque[k - 1]) / 2.0 : torque[k];
            const double push = mean - fit.value[AxisFit::DeadTime] * slope - drag - fit.value[AxisFit::Viscous] * simulated;
            const double faster = simulated + fit.value[AxisFit::Acceleration] * push * h;
            place += (simulated + faster) / 2.0 * h;
            simulated = faster;
            position.push_back(place);
        }
        const std::vector<double> smooth = speedOf(position, h);
        double mean = 0.0;
        std::vector<double> differences;
        for (std::size_t k = reach; k + reach < smooth.size(); ++k) {
            differences.push_back(smooth[k] - speed[run.begin + k]);
            mean += differences.back();
            highest = std::max(highest, std::abs(speed[run.begin + k]));
        }
        mean /= std::max<double>(1.0, double(differences.size())); // the start speed that fits best
        for (const double difference : differences)
            squares += (difference - mean) * (difference - mean);
        count += differences.size();
    }
    return count > 0 && highest > 0.0 ? std::sqrt(squares / double(count)) / highest : 1.0;
}
