#include "drivestate.h"

#include "parameters.h"
#include "sessionregisters.h"
#include "sessiontext.h"

namespace {

// A live register goes either into an integer member or, divided, into a member in display units.
struct LiveRegister
{
    int address;
    qint32 DriveState::*raw;
    double DriveState::*display;
    double unitsPerDisplay;
};

constexpr LiveRegister integer(int address, qint32 DriveState::*member)
{
    return {address, member, nullptr, 1.0};
}

constexpr LiveRegister scaled(int address, double DriveState::*member, double unitsPerDisplay)
{
    return {address, nullptr, member, unitsPerDisplay};
}

// The faults come first: in firmware-upgrade mode they are all there is.
constexpr LiveRegister liveRegisters[] = {
    integer(reg::FaultRegister, &DriveState::faultRegister),
    integer(reg::StatusRegister, &DriveState::statusRegister),
    integer(reg::SoftEnable, &DriveState::softEnable),
    scaled(reg::BusVoltage, &DriveState::busVoltage, 100.0),
    scaled(reg::OutputCurrent, &DriveState::outputCurrent, 560.0),
    scaled(reg::DeviceTemperature, &DriveState::deviceTemperature, 1.0),
    scaled(reg::ActualCurrentLimit, &DriveState::actualCurrentLimit, 1000.0),
    integer(reg::LastLimitReason, &DriveState::lastLimitReason),
    integer(reg::VelocityFeedback, &DriveState::rawVelocity),
    integer(reg::PositionFeedback, &DriveState::position),
    integer(reg::SetpointInUse, &DriveState::setpoint),
    scaled(reg::AnalogIn1, &DriveState::analogIn1, 1000.0),
    scaled(reg::AnalogIn2, &DriveState::analogIn2, 1000.0),
    scaled(reg::AnalogEncoderA, &DriveState::analogEncoderA, 1000.0),
    scaled(reg::AnalogEncoderB, &DriveState::analogEncoderB, 1000.0),
    integer(reg::DigitalInputs, &DriveState::digitalInputs),
    integer(reg::ControlInputs, &DriveState::controlInputs),
    integer(reg::FaultLocation1, &DriveState::faultLocation1),
    integer(reg::FaultLocation2, &DriveState::faultLocation2),
    integer(reg::ScopeState, &DriveState::scopeState),
};
constexpr int liveRegisterCount = sizeof(liveRegisters) / sizeof(liveRegisters[0]);
constexpr int debugValueCount = std::tuple_size<decltype(DriveState::debugValues)>::value;

constexpr const char *limitReasons[] = {
    QT_TRANSLATE_NOOP("Connection", "None"),
    QT_TRANSLATE_NOOP("Connection", "Peak current [MMC]"),
    QT_TRANSLATE_NOOP("Connection", "Continuous current [MCC]"),
    QT_TRANSLATE_NOOP("Connection", "Motor thermal model [MTC]"),
    QT_TRANSLATE_NOOP("Connection", "Drive temperature"),
    QT_TRANSLATE_NOOP("Connection", "Supply voltage"),
};
constexpr int limitReasonCount = sizeof(limitReasons) / sizeof(limitReasons[0]);

void storeRegister(const LiveRegister &live, qint32 rawValue, DriveState &state)
{
    if (live.raw)
        state.*live.raw = rawValue;
    else
        state.*live.display = rawValue / live.unitsPerDisplay;
}

} // namespace

void takeWordingSettings(const Parameters &list, DriveState &state)
{
    SingleParam limitSwitches = list.getParam(QStringLiteral("LFS"));
    if (limitSwitches.name == QLatin1String("NULL"))
        limitSwitches = list.getParam(QStringLiteral("LSF"));
    state.limitSwitchFunction = limitSwitches.value;
    state.feedbackResolution = list.getParam(QStringLiteral("FBR")).value;
}

QString limitReasonText(int code)
{
    if (code >= 0 && code < limitReasonCount)
        return SessionText::tr(limitReasons[code]);
    return SessionText::tr("Unknown (%1)").arg(code);
}

StatusPoll::StatusPoll(const DriveState &state)
    : m_firmwareUpgradeMode(state.firmwareUpgradeMode), m_debugValues(state.debugValuesShown),
      m_watchedAddress(state.watchedAddress)
{
}

QVector<int> StatusPoll::registers() const
{
    if (m_firmwareUpgradeMode)
        return {reg::FaultRegister};
    QVector<int> list;
    for (const LiveRegister &live : liveRegisters)
        list.append(live.address);
    for (int i = 0; m_debugValues && i < debugValueCount; ++i)
        list.append(reg::DebugValue1 + i);
    if (m_watchedAddress != 0)
        list.append(m_watchedAddress);
    return list;
}

QVector<QVector<QueueItem>> StatusPoll::exchanges() const
{
    return exchangesFor(registers());
}

QVector<QVector<QueueItem>> StatusPoll::exchangesFor(const QVector<int> &registers)
{
    QVector<QVector<QueueItem>> result;
    for (int i = 0; i < registers.size(); ++i) {
        if (i % maxRegisterCount == 0)
            result.append({
                {QueueItem::Address, reg::ReturnLength},
                {QueueItem::Value24, reg::Returns30Bits},
                {QueueItem::Address, reg::ReturnSelector},
            });
        result.last().append({QueueItem::Value24, registers.at(i)});
    }
    return result;
}

bool StatusPoll::store(const QVector<qint32> &values, DriveState &state) const
{
    if (values.size() != registers().size())
        return false;
    int next = 0;
    const int liveCount = m_firmwareUpgradeMode ? 1 : liveRegisterCount;
    for (int i = 0; i < liveCount; ++i)
        storeRegister(liveRegisters[i], values[next++], state);
    if (m_firmwareUpgradeMode)
        return true;
    for (int i = 0; m_debugValues && i < debugValueCount; ++i)
        state.debugValues[i] = values[next++];
    if (m_watchedAddress != 0)
        state.watchedValue = values[next++];
    state.watchedAddress = m_watchedAddress;
    return true;
}
