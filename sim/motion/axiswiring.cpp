// What reaches the axis from its encoder, inputs, supply and machine, as they are wired.
#include "servoaxis.h"

#include <algorithm>
#include <cmath>

namespace sim {

namespace {

constexpr double twoPi = 6.283185307179586;
constexpr double thirdOfTurn = twoPi / 3.0;
constexpr double sagPerWatt = 2.0e-5; ///< share of the supply lost per watt taken: a fiftieth at a kilowatt
constexpr double deepestSag = 0.6;    ///< share of the supply that a weak one loses at most

} // namespace

int ServoAxis::axisSign() const
{
    return m_settings.flags & FlagInvertAxis ? -1 : 1;
}

/// inverted feedback alone makes the loop run away; inverting the axis turns torque and feedback together.
int ServoAxis::feedbackSign() const
{
    const int wired = m_machine.feedbackReversed > 0.0 ? -1 : 1;
    return axisSign() * wired * (m_settings.flags & FlagInvertFeedback ? -1 : 1);
}

std::int64_t ServoAxis::readEncoder()
{
    if (m_machine.encoderNoise == 0.0)
        return m_motor.counts();
    return static_cast<std::int64_t>(std::floor(m_motor.angle() + m_machine.encoderNoise * m_noise.next()));
}

std::int32_t ServoAxis::controlInputs() const
{
    constexpr std::int32_t inverted = InputEnable | InputPositiveFeed | InputNegativeFeed;
    std::int32_t wired = m_inputs.controls;
    wired &= m_machine.positiveStuck > 0.0 ? ~InputPositiveFeed : ~0;
    wired &= m_machine.negativeStuck > 0.0 ? ~InputNegativeFeed : ~0;
    const std::int32_t inputs = m_settings.inputsNormallyOpen ? wired ^ inverted : wired;
    return m_homing.isSwitchClosed(m_motor) ? inputs | InputHomeSwitch : inputs;
}

/// The encoder's lines and the Hall sensors, as they follow the shaft.
std::int32_t ServoAxis::digitalInputs() const
{
    constexpr std::int32_t EncoderA = 512, EncoderB = 1024, HallU = 8192;
    const std::int64_t quarter = m_motor.counts() & 3;
    std::int32_t bits = (quarter == 1 || quarter == 2 ? EncoderA : 0) | (quarter >= 2 ? EncoderB : 0);
    for (int phase = 0; phase < 3; ++phase) {
        if (std::sin(m_motor.electricalAngle() - phase * thirdOfTurn) > 0.0)
            bits |= HallU << phase;
    }
    return bits;
}

/// The supply sags under load, and rises a little while the motor brakes.
double ServoAxis::supplyVolts() const
{
    return m_inputs.supplyCentivolts / 100.0 * (1.0 - m_sagged) * (1.0 - sagPerWatt * m_motor.power());
}

/// A weak supply gives way while the motor has power, and comes back as slowly.
void ServoAxis::sagSupply()
{
    const double step = m_machine.sag / 100.0 / cycleRate;
    m_sagged = std::clamp(m_sagged + (m_brake.isPowered() ? step : -step), 0.0, deepestSag);
}

/// With a wrong resolution the drive loses the rotor angle as the motor turns; with two phases swapped its field turns
/// backwards, and the rotor comes to rest within an eighth of an electrical turn.
double ServoAxis::commutation() const
{
    const bool isSwapped = m_machine.phasesSwapped > 0.0;
    if (m_settings.feedbackLines == MotorModel::encoderLines && !isSwapped)
        return 1.0;
    const double turns = (m_motor.angle() - m_commutationFrom) / MotorModel::countsPerTurn;
    const double field = double(MotorModel::encoderLines) / m_settings.feedbackLines * (isSwapped ? -1.0 : 1.0);
    return std::cos(twoPi * m_motor.polePairs() * turns * (1.0 - field));
}

MotorModel::Load ServoAxis::load() const
{
    const bool isSlipping = m_machine.brakeSlip > 0.0;
    MotorModel::Load load;
    load.torque = m_inputs.loadTorque;
    load.locked = m_inputs.locked || (m_brake.isClosed() && !isSlipping);
    load.brakeTorque = m_brake.isClosed() ? m_machine.brakeSlip : 0.0;
    load.commutation = commutation();
    return load;
}

} // namespace sim
