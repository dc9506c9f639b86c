// The rules between the controls of the parameter pages.
#include "parameterpages.h"

#include "connection.h"
#include "makerlinks.h"
#include "sanitychecks.h"
#include "ui_faultlimitspage.h"
#include "ui_goalspage.h"
#include "ui_machinepage.h"
#include "ui_tuningpage.h"
#include "visibility.h"

namespace {

/// Whether something had to be changed.
template <typename Box> bool orderPair(Box *low, Box *high, ParameterPages::Typed typed)
{
    if (low->value() <= high->value())
        return false;
    if (typed == ParameterPages::Typed::Low)
        high->setValue(orderedAfterLow(low->value(), high->value()).second);
    else
        low->setValue(orderedAfterHigh(low->value(), high->value()).first);
    return true;
}

} // namespace

void ParameterPages::makePolesEven()
{
    const int typed = m_forms.machine.MPC->value();
    if (typed == evenPoleCount(typed))
        return;
    m_forms.machine.MPC->setValue(evenPoleCount(typed));
    emit corrected(QStringLiteral("MPC"), tr("Poles come in pairs: %1 was rounded to an even number.").arg(typed));
}

void ParameterPages::orderCurrents(Typed typed)
{
    if (!orderPair(m_forms.machine.MCC, m_forms.machine.MMC, typed))
        return;
    if (typed == Typed::Low)
        emit corrected(QStringLiteral("MMC"), tr("Raised with [MCC]: the peak is never below it."));
    else
        emit corrected(QStringLiteral("MCC"), tr("Lowered with [MMC]: it is never above the peak."));
}

void ParameterPages::orderTravelLimits(Typed typed)
{
    if (!orderPair(m_forms.machine.HLL, m_forms.machine.HHL, typed))
        return;
    if (typed == Typed::Low)
        emit corrected(QStringLiteral("HHL"), tr("Raised with [HLL]: it is never below it."));
    else
        emit corrected(QStringLiteral("HLL"), tr("Lowered with [HHL]: it is never above it."));
}

void ParameterPages::updateVisibility()
{
    VisibilityInputs in;
    in.motorType = m_forms.machine.MT->currentIndex();
    in.controlMode = m_forms.goals.CM->currentIndex();
    in.homing = m_forms.machine.HME->currentIndex();
    in.setpointInput = m_forms.goals.CRI->currentIndex();
    in.velocityFeedback = m_forms.machine.FB2D->currentIndex();
    in.showAdvanced = m_showAdvanced;
    in.isKetaPro = m_session.isKetaPro();
    applyVisibility(m_window, in);
}

void ParameterPages::updateAllRules()
{
    updateVisibility();
    feedbackDeviceChosen(m_forms.machine.FBD->currentText());
    underVoltageTyped(m_forms.faultLimits.FUV->value());
}

void ParameterPages::setpointInputChosen(int index)
{
    updateVisibility();
    if (!hasSetpointOffset(index))
        m_forms.goals.CAO->setValue(0.0);
}

void ParameterPages::axisTypeChosen(int index)
{
    const QString unit = axisUnits(index).plural;
    m_forms.goals.AXSr->setText(tr("%1 per motor revolution").arg(unit));
    // These two turn into converted values as soon as the unit labels are next computed.
    m_forms.goals.CVLrvel->setText(tr("%1/s").arg(unit));
    m_forms.goals.CALracc->setText(tr("%1/s²").arg(unit));
    emit unitsChanged();
}

void ParameterPages::feedbackDeviceChosen(const QString &name)
{
    const auto guide = [](const char *path, const QString &text) {
        return tr("See guide <a href=\"%1\">%2</a>").arg(makerWikiPage(QLatin1String(path)), text);
    };
    QString help;
    if (name.contains(QLatin1String("SinCos")))
        help = guide("/wiki/Using_SinCos_encoder", tr("Using SinCos encoder"));
    else if (name.contains(QLatin1String("Resolver")))
        help = guide("/wiki/Using_resolver_feedback_device", tr("Using resolver"));
    m_forms.machine.FBDhelp->setText(help);
}

void ParameterPages::underVoltageTyped(double volts)
{
    const SupplyWarning warning = underVoltageWarning(modelName(), volts);
    if (!warning.text.isEmpty())
        m_forms.faultLimits.FUVwarning->setText(warning.text);
    m_forms.faultLimits.FUVwarning->setVisible(warning.visible);
}

void ParameterPages::toggleAdvanced()
{
    m_showAdvanced = !m_showAdvanced;
    m_forms.tuning.showAdvancedSettings->setText(m_showAdvanced ? tr("Hide advanced settings")
                                                                : tr("Show advanced settings"));
    updateVisibility();
}
