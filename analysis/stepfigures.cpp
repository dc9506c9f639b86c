#include "stepfigures.h"

#include "analysistext.h"
#include "ringing.h"

#include <algorithm>
#include <cmath>

namespace {

using Samples = std::vector<double>;

constexpr double settlingBand = 0.02;
constexpr double settlingProof = 0.1; ///< share of the settling time for which it has to stay there
constexpr double risesFrom = 0.1, risesTo = 0.9;

Figure number(double value)
{
    return {value, QString()};
}

Figure none(const QString &reason)
{
    return {std::nullopt, reason};
}

struct FigureRow
{
    const char *name;
    Figure StepFigures::*figure;
};

constexpr FigureRow figureRows[] = {
    {"riseTime", &StepFigures::riseTime},
    {"timeTo90", &StepFigures::timeTo90},
    {"overshoot", &StepFigures::overshoot},
    {"settlingTime", &StepFigures::settlingTime},
    {"peakError", &StepFigures::peakError},
    {"rmsError", &StepFigures::rmsError},
    {"timeInCurrentLimit", &StepFigures::timeInCurrentLimit},
    {"ringing", &StepFigures::ringing},
    {"ringingResolution", &StepFigures::ringingResolution},
};

StepFigures withoutFigures(const StepRecord &record, const QString &reason)
{
    StepFigures figures;
    for (const FigureRow &row : figureRows)
        figures.*row.figure = none(reason);
    figures.unit = record.unit;
    figures.channel = record.channel;
    return figures;
}

/// What is wrong with a record before anything is looked for in it.
QString unusable(const StepRecord &record)
{
    if (record.setpoint.size() < 2 || record.setpoint.size() != record.measured.size() || !(record.period > 0.0))
        return AnalysisText::tr("Not defined: a setpoint and what was achieved have to be captured together.");
    const auto isBad = [](double value) { return !std::isfinite(value); };
    for (const Samples *samples : {&record.setpoint, &record.measured, &record.torqueSetpoint}) {
        if (std::any_of(samples->begin(), samples->end(), isBad))
            return AnalysisText::tr("Not defined: the record holds values that are no numbers.");
    }
    return QString();
}

/// The part of a record from the first change of the setpoint on, in shares of the step.
class Step
{
public:
    explicit Step(const StepRecord &record);

    bool hasChange() const { return m_start < m_record.setpoint.size(); }
    bool hasHeight() const { return m_to != m_from; }

    void measureRise(StepFigures &figures) const;
    void measureEnd(StepFigures &figures) const;
    void measureErrors(StepFigures &figures) const;
    Figure timeInLimit() const;
    void measureRinging(StepFigures &figures) const;

private:
    std::optional<double> crossing(double level) const;
    bool isOutside(std::size_t i) const { return std::abs(m_share[i] - 1.0) > settlingBand + rounding; }
    Figure settling() const;

    static constexpr double rounding = 1e-12;

    const StepRecord &m_record;
    std::size_t m_start = 0;
    double m_from = 0.0;
    double m_to = 0.0;
    Samples m_share; ///< from m_start on
};

Step::Step(const StepRecord &record) : m_record(record)
{
    const Samples &setpoint = record.setpoint;
    m_from = record.before.value_or(setpoint.front());
    m_start = 0;
    while (m_start < setpoint.size() && setpoint[m_start] == m_from)
        ++m_start;
    m_to = setpoint.back();
    if (!hasChange() || !hasHeight())
        return;
    for (std::size_t i = m_start; i < setpoint.size(); ++i)
        m_share.push_back((record.measured[i] - m_from) / (m_to - m_from));
}

/// Periods from the start to the first crossing; nothing when the level is not reached, or was passed at the start.
std::optional<double> Step::crossing(double level) const
{
    if (m_share.front() >= level)
        return std::nullopt;
    for (std::size_t i = 1; i < m_share.size(); ++i) {
        if (m_share[i] >= level)
            return double(i - 1) + (level - m_share[i - 1]) / (m_share[i] - m_share[i - 1]);
    }
    return std::nullopt;
}

void Step::measureRise(StepFigures &figures) const
{
    const std::optional<double> low = crossing(risesFrom), high = crossing(risesTo);
    const QString missed = AnalysisText::tr("Not defined: 90 % of the step is not reached within the record.");
    const QString early = AnalysisText::tr("Not defined: the axis was on its way already when the setpoint changed.");
    const bool isEarly = m_share.front() >= risesTo;
    figures.timeTo90 = high ? number(*high * m_record.period) : none(isEarly ? early : missed);
    if (!high)
        figures.riseTime = figures.timeTo90;
    else
        figures.riseTime = low ? number((*high - *low) * m_record.period) : none(early);
}

Figure Step::settling() const
{
    std::size_t inside = m_share.size();
    while (inside > 0 && !isOutside(inside - 1))
        --inside;
    const std::size_t stay = m_share.size() - inside;
    if (stay == 0)
        return none(AnalysisText::tr("Not settled: it is more than 2 % away at the end of the record."));
    if (double(stay) < settlingProof * double(inside))
        return none(AnalysisText::tr("Not settled: the record ends too soon after 2 % was reached."));
    return number(double(inside) * m_record.period);
}

void Step::measureEnd(StepFigures &figures) const
{
    figures.settlingTime = settling();
    const auto highest = std::max_element(m_share.begin(), m_share.end());
    const bool isAtEnd = highest == m_share.end() - 1 && isOutside(m_share.size() - 1);
    if (*highest < 1.0 && !figures.settlingTime.value)
        figures.overshoot = none(AnalysisText::tr("Not defined: the final value is not reached within the record."));
    else if (isAtEnd)
        figures.overshoot = none(AnalysisText::tr("Not defined: it is still moving away when the record ends."));
    else
        figures.overshoot = number(std::max(*highest - 1.0, 0.0) * 100.0);
}

void Step::measureErrors(StepFigures &figures) const
{
    double peak = 0.0, squares = 0.0;
    for (std::size_t i = m_start; i < m_record.setpoint.size(); ++i) {
        const double error = m_record.setpoint[i] - m_record.measured[i];
        peak = std::max(peak, std::abs(error));
        squares += error * error;
    }
    figures.peakError = number(peak);
    figures.rmsError = number(std::sqrt(squares / double(m_record.setpoint.size() - m_start)));
}

Figure Step::timeInLimit() const
{
    const Samples &torque = m_record.torqueSetpoint;
    if (torque.size() < m_record.setpoint.size())
        return none(AnalysisText::tr("Not defined: the torque setpoint was not captured."));
    if (!m_record.currentLimit || !(*m_record.currentLimit > 0.0))
        return none(AnalysisText::tr("Not defined: the current limit (MMC) is not known."));
    // The recorded word is rounded.
    const double limit = *m_record.currentLimit - m_record.currentResolution;
    int samples = 0;
    for (std::size_t i = m_start; i < m_record.setpoint.size(); ++i)
        samples += std::abs(torque[i]) >= limit ? 1 : 0;
    return number(samples * m_record.period);
}

void Step::measureRinging(StepFigures &figures) const
{
    const auto arrived = std::find_if(m_share.begin(), m_share.end(), [](double share) { return share >= risesTo; });
    const auto first = static_cast<std::size_t>(arrived - m_share.begin()) + m_start;
    Samples tail;
    for (std::size_t i = first; i < m_record.measured.size(); ++i)
        tail.push_back(m_record.measured[i] - m_record.setpoint[i]);
    const std::optional<Ringing> found = findRinging(tail, m_record.period, m_record.resolution);
    const QString reason =
        arrived == m_share.end() ? figures.timeTo90.reason : AnalysisText::tr("Not defined: the tail does not ring.");
    figures.ringing = found ? number(found->frequency) : none(reason);
    figures.ringingResolution = found ? number(found->resolution) : none(reason);
}

} // namespace

StepFigures stepFigures(const StepRecord &record)
{
    const QString problem = unusable(record);
    if (!problem.isEmpty())
        return withoutFigures(record, problem);
    const Step step(record);
    if (!step.hasChange())
        return withoutFigures(record, AnalysisText::tr("Not defined: the setpoint does not change in this record."));
    StepFigures figures = withoutFigures(record, AnalysisText::tr("Not defined: the setpoint ends where it began."));
    step.measureErrors(figures);
    figures.timeInCurrentLimit = step.timeInLimit();
    if (!step.hasHeight())
        return figures;
    step.measureRise(figures);
    step.measureEnd(figures);
    step.measureRinging(figures);
    return figures;
}

QJsonObject toJson(const StepFigures &figures)
{
    QJsonObject object{{QStringLiteral("unit"), figures.unit}, {QStringLiteral("channel"), figures.channel}};
    QJsonObject reasons;
    for (const FigureRow &row : figureRows) {
        const Figure &figure = figures.*row.figure;
        object.insert(QLatin1String(row.name), figure.value ? QJsonValue(*figure.value) : QJsonValue());
        if (!figure.value)
            reasons.insert(QLatin1String(row.name), figure.reason);
    }
    object.insert(QStringLiteral("reason"), reasons);
    return object;
}
