// Parameters into controls and back, units beside them, and the rules between controls.
#include "bitfields.h"
#include "errorwindow.h"
#include "makerlinks.h"
#include "mw.h"
#include "mwforms.h"
#include "sanitychecks.h"
#include "unitconversion.h"
#include "version.h"
#include "visibility.h"

#include <QDebug>
#include <QMessageBox>
#include <algorithm>
#include <cmath>

void MW::paramsRetreived(Parameters params, bool loadedFromFile)
{
    using Source = EditedSettings::Source;
    Source source = Source::File;
    if (!loadedFromFile) // a part of it after a read that failed, or from a bootloader
        source = m_connection.valuesAreComplete() ? Source::Drive : Source::PartOfDrive;
    else if (m_settings.edited().getParamCount() == 0)
        source = Source::BareCatalogue; // the first set, whose zeros are nobody's settings
    m_settings.accept(params, source);
    const double frequency = m_settings.value(QStringLiteral("PIF"));
    if (frequency > 0)
        m_loopFrequency = frequency;
    // A bootloader tells its identity only; the other records are still those of the drive before.
    const bool fromBootloader = !loadedFromFile && m_connection.isInFirmwareUpgradeMode();
    const bool driveWasRead = !fromBootloader && m_settings.value(QStringLiteral("TCFWVER")) > 0;
    if (driveWasRead && !loadedFromFile) // a file leaves a mixture of two drives' identities
        sendUpdateQuery();
    fillControls(source == Source::BareCatalogue);
    if (fromBootloader)
        showBootloaderIdentity();

    setParams(); // what a control clamped counts as held
    if (source != Source::File)
        m_settings.settle();
    updateSaveToFileButton();
    updateUnitLabels();
    updateAllRules();
    updateApplyButtonState();
}

void MW::sendUpdateQuery()
{
    const auto value = [this](const char *name) { return truncateToInt32(m_settings.value(QLatin1String(name))); };
    m_updateChecker.sendCheckRequest(QLatin1String(VELBRIN_VERSION), value("HWTYPE"), value("HWSERIAL"), value("FWVER"),
                                     value("TCFWVER"), value("UID"));
}

void MW::fillControls(bool bareCatalogue)
{
    const Parameters &list = m_settings.edited();
    const int typeId = int(m_settings.value(QStringLiteral("HWTYPE")));
    const QString model = deviceModelName(typeId, false);
    showDeviceType(typeId);
    for (int i = 0; i < list.getParamCount(); ++i) {
        const SingleParam p = list.getParam(i);
        const bool supported = p.supportedInDevice(model);
        if (QWidget *group = p.group.isEmpty() ? nullptr : findChild<QWidget *>(p.group))
            group->setVisible(supported);
        if (!p.auxFlag && bitFieldControls(p.name).isEmpty())
            continue;
        // Zeros that nobody read stay out of the controls; labels say that nothing was read yet.
        const bool keeps = bareCatalogue && !p.readonly;
        const auto filled =
            keeps ? m_binding.keepStartValue(p, int(Parameters::startValue(p.name))) : fillControl(p);
        if (filled.shown)
            m_settings.showAs(p.name, *filled.shown);
        if (keeps)
            continue;
        if (!filled.found && p.name != QLatin1String("HWTYPE") && p.name != QLatin1String("UID"))
            qDebug().noquote() << p.name + QLatin1String(" NOT FOUND");
        // Without a drive there is no model to lack anything: a file can be looked through and edited.
        m_binding.setSupported(p.name, supported || typeId <= 0);
    }
}

ControlBinding::Filled MW::fillControl(SingleParam p)
{
    // A file brings the limits of the drive that it was saved from; those of the connected one count. A value beyond
    // them is shown all the same: it is what the file says, and applying it tells what the drive says to it.
    const SingleParam held = m_settings.drive().getParam(p.name);
    const bool known = m_connection.isConnected() && m_connection.valuesAreComplete() && held.max > held.min;
    if (known) {
        p.min = std::min(held.min, p.value);
        p.max = std::max(held.max, p.value);
    }
    return m_binding.fill(p, known && p.min == held.min && p.max == held.max);
}

void MW::showDeviceType(int typeId)
{
    const QString unread = infoLabelText(QStringLiteral("HWSERIAL"), 0);
    m_form->HWMODEL->setText(typeId > 0 ? deviceModelName(typeId, true) : unread);
    m_form->HWVER->setText(typeId > 0 ? giveDeviceVersion(typeId) : unread);
}

void MW::setParams()
{
    for (int i = 0; i < m_settings.edited().getParamCount(); ++i) {
        if (const auto held = m_binding.read(m_settings.edited().getParam(i)))
            m_settings.edit(i, *held);
    }
}

// --- Rules between controls --------------------------------------------------------------------------------------

void MW::on_MPC_editingFinished()
{
    m_form->MPC->setValue(evenPoleCount(m_form->MPC->value()));
}

void MW::on_MCC_editingFinished()
{
    m_form->MMC->setValue(orderedAfterLow(m_form->MCC->value(), m_form->MMC->value()).second);
}

void MW::on_MMC_editingFinished()
{
    m_form->MCC->setValue(orderedAfterHigh(m_form->MCC->value(), m_form->MMC->value()).first);
}

void MW::on_HLL_editingFinished()
{
    m_form->HHL->setValue(orderedAfterLow(m_form->HLL->value(), m_form->HHL->value()).second);
}

void MW::on_HHL_editingFinished()
{
    m_form->HLL->setValue(orderedAfterHigh(m_form->HLL->value(), m_form->HHL->value()).first);
}

void MW::on_MT_currentIndexChanged(int)
{
    updateControlVisibility();
}

void MW::on_CM_currentIndexChanged(int)
{
    updateControlVisibility();
}

void MW::on_HME_currentIndexChanged(int)
{
    updateControlVisibility();
}

void MW::on_FB2D_currentIndexChanged(int)
{
    updateControlVisibility();
}

void MW::on_CRI_currentIndexChanged(int index)
{
    updateControlVisibility();
    if (!hasSetpointOffset(index))
        m_form->CAO->setValue(0.0);
}

void MW::on_AXT_currentIndexChanged(int index)
{
    const QString unit = axisUnits(index).plural;
    m_form->AXSr->setText(tr("%1 per motor revolution").arg(unit));
    // These two turn into converted values as soon as the unit labels are next computed.
    m_form->CVLrvel->setText(tr("%1/s").arg(unit));
    m_form->CALracc->setText(tr("%1/s²").arg(unit));
}

void MW::on_FBD_currentIndexChanged(const QString &arg1)
{
    const auto guide = [](const char *path, const QString &text) {
        return tr("See guide <a href=\"%1\">%2</a>").arg(makerWikiPage(QLatin1String(path)), text);
    };
    QString help;
    if (arg1.contains(QLatin1String("SinCos")))
        help = guide("/wiki/Using_SinCos_encoder", tr("Using SinCos encoder"));
    else if (arg1.contains(QLatin1String("Resolver")))
        help = guide("/wiki/Using_resolver_feedback_device", tr("Using resolver"));
    m_form->FBDhelp->setText(help);
}

void MW::on_FUV_valueChanged(double arg1)
{
    const SupplyWarning warning = underVoltageWarning(m_form->HWMODEL->text(), arg1);
    if (!warning.text.isEmpty())
        m_form->FUVwarning->setText(warning.text);
    m_form->FUVwarning->setVisible(warning.visible);
}

void MW::on_showAdvancedSettings_clicked()
{
    m_showAdvanced = !m_showAdvanced;
    m_form->showAdvancedSettings->setText(m_showAdvanced ? tr("Hide advanced settings") : tr("Show advanced settings"));
    updateControlVisibility();
}

void MW::updateControlVisibility()
{
    VisibilityInputs in;
    in.motorType = m_form->MT->currentIndex();
    in.controlMode = m_form->CM->currentIndex();
    in.homing = m_form->HME->currentIndex();
    in.setpointInput = m_form->CRI->currentIndex();
    in.velocityFeedback = m_form->FB2D->currentIndex();
    in.showAdvanced = m_showAdvanced;
    in.isKetaPro = m_connection.isKetaPro();
    applyVisibility(this, in);
}

void MW::updateAllRules()
{
    updateControlVisibility();
    on_FBD_currentIndexChanged(m_form->FBD->currentText());
    on_FUV_valueChanged(m_form->FUV->value());
}

void MW::doParamSanityChecks()
{
    const UnitConversion units = unitConversion();
    SanityInputs in;
    in.homing = m_form->HME->currentIndex();
    in.homingThreshold = m_form->HMH->value();
    in.trackingThreshold = m_form->FPT->value();
    in.controlMode = m_form->CM->currentIndex();
    in.limitVelocity = units.velocity(m_form->CVL->value());
    in.faultVelocity = units.velocity(m_form->FEV->value(), false, true);
    m_errorWindow->note(sanityWarnings(in));
}

// --- The drive changed its control mode --------------------------------------------------------------------------

void MW::deviceControlModeChanged(int newmode)
{
    if (!m_connection.deviceHasCapability(Connection::CapControlModeChange))
        return;
    if (m_resetChoice == ResetChoice::Always) {
        m_connection.command(Connection::TaskSetZero);
        return; // answered for good: a second reset through the question would add nothing
    }
    const double oneRevolution = 4 * m_settings.drive().getParam(QStringLiteral("FBR")).value;
    if (m_resetChoice == ResetChoice::Ask && newmode == 0 && std::abs(m_connection.positionFeedback()) > oneRevolution)
        askWhenFree([this] { askToResetPosition(); });
}

void MW::askToResetPosition()
{
    if (!m_connection.isConnected())
        return;
    QMessageBox box(QMessageBox::Question, tr("Velbrin"), tr("Drive control mode changed to position control "),
                    QMessageBox::NoButton, this);
    box.setInformativeText(tr("Current position is %1, thus using setpoint commands may cause unexpected motion. Do "
                              "you want to reset position feedback and setpoint values to zero?")
                               .arg(QString::number(double(m_connection.positionFeedback()))));
    QPushButton *keep = box.addButton(tr("Don't reset"), QMessageBox::RejectRole);
    const QPushButton *reset = box.addButton(tr("Reset"), QMessageBox::AcceptRole);
    const QPushButton *never = box.addButton(tr("Never reset"), QMessageBox::RejectRole);
    const QPushButton *always = box.addButton(tr("Always reset"), QMessageBox::AcceptRole);
    box.setDefaultButton(keep);
    box.setEscapeButton(keep);
    box.exec();
    qDebug() << "choice" << (box.clickedButton() ? box.clickedButton()->text() : QString());
    if (box.clickedButton() == never)
        m_resetChoice = ResetChoice::Never;
    if (box.clickedButton() == always)
        m_resetChoice = ResetChoice::Always;
    if (box.clickedButton() == reset || box.clickedButton() == always)
        m_connection.command(Connection::TaskSetZero);
}
