// The switchboard for single settings: the rules between the controls, which stand in ParameterPages.
#include "mw.h"

#include "parameterpages.h"

namespace {

UnitConversion::Scale scaleOf(bool isSetpoint, bool isRaw)
{
    using Scale = UnitConversion::Scale;
    return isSetpoint ? (isRaw ? Scale::RawSetpoint : Scale::Setpoint) : (isRaw ? Scale::Raw : Scale::Value);
}

} // namespace

void MW::on_MPC_editingFinished()
{
    m_parameters->makePolesEven();
}

void MW::on_MCC_editingFinished()
{
    m_parameters->orderCurrents(ParameterPages::Typed::Low);
}

void MW::on_MMC_editingFinished()
{
    m_parameters->orderCurrents(ParameterPages::Typed::High);
}

void MW::on_HLL_editingFinished()
{
    m_parameters->orderTravelLimits(ParameterPages::Typed::Low);
}

void MW::on_HHL_editingFinished()
{
    m_parameters->orderTravelLimits(ParameterPages::Typed::High);
}

void MW::on_MT_currentIndexChanged(int)
{
    m_parameters->updateVisibility();
}

void MW::on_CM_currentIndexChanged(int)
{
    m_parameters->updateVisibility();
}

void MW::on_HME_currentIndexChanged(int)
{
    m_parameters->updateVisibility();
}

void MW::on_FB2D_currentIndexChanged(int)
{
    m_parameters->updateVisibility();
}

void MW::on_CRI_currentIndexChanged(int index)
{
    m_parameters->setpointInputChosen(index);
}

void MW::on_AXT_currentIndexChanged(int index)
{
    m_parameters->axisTypeChosen(index);
}

void MW::on_FBD_currentIndexChanged(const QString &arg1)
{
    m_parameters->feedbackDeviceChosen(arg1);
}

void MW::on_FUV_valueChanged(double arg1)
{
    m_parameters->underVoltageTyped(arg1);
}

void MW::on_showAdvancedSettings_clicked()
{
    m_parameters->toggleAdvanced();
}

// --- Named by the protocol of the slots, called by nobody ---------------------------------------------------------

double MW::convertHWtoMachineVelocityUnits(double hwunits, bool isSetpoint, bool rawHWscale)
{
    return m_parameters->units().velocity(hwunits, scaleOf(isSetpoint, rawHWscale));
}

QString MW::convertHWtoMachineVelocityUnitsLabel(double hwunits, bool isSetpoint, bool rawHWscale)
{
    return m_parameters->units().velocityLabel(hwunits, scaleOf(isSetpoint, rawHWscale));
}

QString MW::convertHWtoMachinePositionUnitsLabel(double hwunits, bool rawHWscale)
{
    return m_parameters->units().positionLabel(hwunits, scaleOf(!rawHWscale, rawHWscale));
}

QString MW::convertHWtoMachineAccelerationUnitsLabel(double hwunits)
{
    return m_parameters->units().accelerationLabel(hwunits);
}

QString MW::convertHWtoMachineUnitsLabel(double hwunits, QString labelname)
{
    return m_parameters->units().labelBySuffix(hwunits, labelname);
}

QString MW::convertHWrefToUnitsLabel(double ref)
{
    return m_parameters->setpointLabel(ref);
}

QString MW::giveDeviceVersion(int hwtypeid)
{
    return ParameterPages::deviceVersion(hwtypeid);
}
