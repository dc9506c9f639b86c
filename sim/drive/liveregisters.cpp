#include "liveregisters.h"

#include "registers.h"

namespace sim {

namespace {

using Drive = VirtualDrive;

constexpr std::int32_t encoderMillivolts = 2500; ///< both analog encoder lines rest at half their supply

const LiveRegister registerTable[] = {
    {reg::Status, [](const Drive &d) { return d.axis().status(); }},
    {reg::BusVoltage, [](const Drive &d) { return d.axis().readings().busVoltage; },
     [](Drive &d, std::int32_t v) { d.axis().inputs().supplyCentivolts = v; }},
    {reg::OutputCurrent, [](const Drive &d) { return d.axis().readings().torque; }},
    {reg::Temperature, [](const Drive &d) { return d.axis().inputs().temperature; },
     [](Drive &d, std::int32_t v) { d.axis().inputs().temperature = v; }},
    {reg::CurrentLimit, [](const Drive &d) { return d.axis().currentLimitMilliamperes(); }},
    {reg::LimitReason, [](const Drive &d) { return std::int32_t(d.axis().limitReason()); }},
    {reg::VelocityFeedback, [](const Drive &d) { return d.axis().readings().velocity; }},
    {reg::PositionFeedback, [](const Drive &d) { return d.axis().readings().position; }},
    {reg::SetpointInUse, [](const Drive &d) { return d.axis().readings().setpoint; }},
    {reg::AnalogIn1, [](const Drive &d) { return d.axis().inputs().analog[0]; },
     [](Drive &d, std::int32_t v) { d.axis().inputs().analog[0] = v; }},
    {reg::AnalogIn2, [](const Drive &d) { return d.axis().inputs().analog[1]; },
     [](Drive &d, std::int32_t v) { d.axis().inputs().analog[1] = v; }},
    {reg::AnalogEncoderA, [](const Drive &) { return encoderMillivolts; }},
    {reg::AnalogEncoderB, [](const Drive &) { return encoderMillivolts; }},
    {reg::DigitalInputs, [](const Drive &d) { return d.axis().digitalInputs(); }},
    {reg::ControlInputs, [](const Drive &d) { return d.axis().controlInputs(); },
     [](Drive &d, std::int32_t v) { d.axis().inputs().controls = v; }},
    {reg::FaultLocation1, [](const Drive &d) { return d.axis().faultLocation(); }},
    {reg::FaultLocation2, [](const Drive &) { return 0; }},
    {reg::FirstDebugValue, [](const Drive &d) { return d.axis().readings().debug1; }},
    {reg::FirstDebugValue + 1, [](const Drive &d) { return d.axis().readings().debug2; }},
    {reg::FirstDebugValue + 2, [](const Drive &) { return 0; }},
    {reg::FirstDebugValue + 3, [](const Drive &) { return 0; }},
    {reg::FirstDebugValue + 4, [](const Drive &) { return 0; }},
    {reg::FirstDebugValue + 5, [](const Drive &) { return 0; }},
};

} // namespace

const LiveRegister *LiveRegister::find(int address)
{
    for (const LiveRegister &live : registerTable) {
        if (live.address == address)
            return &live;
    }
    return nullptr;
}

} // namespace sim
