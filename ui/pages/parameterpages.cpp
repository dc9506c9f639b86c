#include "parameterpages.h"

#include "bitfields.h"
#include "connection.h"
#include "sanitychecks.h"
#include "ui_connectpage.h"
#include "ui_faultlimitspage.h"
#include "ui_goalspage.h"
#include "ui_machinepage.h"
#include "ui_tuningpage.h"

#include <QDebug>
#include <algorithm>
#include <cmath>

namespace {
constexpr int sineAndCosineOrders = 12;
}

ParameterPages::ParameterPages(QWidget *window, const Forms &forms, const Connection &session, EditedSettings &settings)
    : QObject(window), m_window(window), m_forms(forms), m_session(session), m_settings(settings), m_binding(window)
{
    hideForGood();
    fillTorqueFunctions();
    connectUnitLabels();
}

void ParameterPages::hideForGood()
{
    const Ui_GoalsPage &goals = m_forms.goals;
    const Ui_TuningPage &tuning = m_forms.tuning;
    for (QWidget *widget :
         {static_cast<QWidget *>(goals.CSD), static_cast<QWidget *>(goals.CSDl), static_cast<QWidget *>(goals.CSDracc),
          static_cast<QWidget *>(tuning.AD), static_cast<QWidget *>(tuning.ADl),
          static_cast<QWidget *>(m_forms.faultLimits.FUVwarning), static_cast<QWidget *>(m_forms.machine.dualfbgroup)})
        widget->hide();
}

void ParameterPages::fillTorqueFunctions()
{
    // Behind the form's "None" and "Constant"; the index is the value that the drive knows.
    for (int k = 2; k < 2 + 2 * sineAndCosineOrders; ++k) {
        const QString text = (k % 2 == 0 ? tr("Sin(%1x)") : tr("Cos(%1x)")).arg(k / 2);
        m_forms.tuning.TRF1->addItem(text);
        m_forms.tuning.TRF2->addItem(text);
    }
}

// --- Values into controls and back --------------------------------------------------------------------------------

void ParameterPages::take(const Parameters &list, bool loadedFromFile)
{
    using Source = EditedSettings::Source;
    Source source = Source::File;
    if (!loadedFromFile) // a part of it after a read that failed, or from a bootloader
        source = m_session.valuesAreComplete() ? Source::Drive : Source::PartOfDrive;
    else if (m_settings.edited().getParamCount() == 0)
        source = Source::BareCatalogue; // the first set, whose zeros are nobody's settings
    m_settings.accept(list, source);
    const double frequency = m_settings.value(QStringLiteral("PIF"));
    if (frequency > 0)
        m_loopFrequency = frequency;
    fillControls();
    // A bootloader tells its identity only; the other records are still those of the drive before.
    if (!loadedFromFile && m_session.isInFirmwareUpgradeMode())
        emit bootloaderRead(int(m_settings.value(QStringLiteral("FWVER"))));
    else if (!loadedFromFile && m_settings.value(QStringLiteral("TCFWVER")) > 0)
        emit driveRead(); // not after a file, which leaves a mixture of two drives' identities
    collect();
    if (source != Source::File)
        m_settings.settle();
    updateAllRules();
}

void ParameterPages::fillControls()
{
    const Parameters &list = m_settings.edited();
    const int typeId = int(m_settings.value(QStringLiteral("HWTYPE")));
    const QString model = deviceModelName(typeId, false);
    showDeviceType(typeId);
    for (int i = 0; i < list.getParamCount(); ++i) {
        const SingleParam p = list.getParam(i);
        const bool supported = p.supportedInDevice(model);
        if (QWidget *group = p.group.isEmpty() ? nullptr : m_window->findChild<QWidget *>(p.group))
            group->setVisible(supported);
        if (!p.auxFlag && bitFieldControls(p.name).isEmpty())
            continue;
        // Without a drive there is no model to lack anything: a file can be looked through and edited.
        const ControlBinding::Filled filled = fillControl(p, !supported && typeId > 0);
        if (filled.shown)
            m_settings.showAs(p.name, *filled.shown);
    }
}

ControlBinding::Filled ParameterPages::fillControl(const SingleParam &p, bool modelLacksIt)
{
    // Zeros that nobody read stay out of the controls; labels say that nothing was read yet.
    if (m_settings.source() == EditedSettings::Source::BareCatalogue && !p.readonly)
        return m_binding.keepStartValue(p, int(Parameters::startValue(p.name)));
    const ControlBinding::Filled filled = fillWithinLimits(p);
    if (!filled.found && p.name != QLatin1String("HWTYPE") && p.name != QLatin1String("UID"))
        qDebug().noquote() << p.name + QLatin1String(" NOT FOUND");
    m_binding.setSupported(p.name, !modelLacksIt);
    return filled;
}

ControlBinding::Filled ParameterPages::fillWithinLimits(SingleParam p)
{
    // A file brings the limits of the drive that it was saved from; those of the connected one count. A value beyond
    // them is shown all the same: it is what the file says, and applying it tells what the drive says to it.
    const SingleParam held = m_settings.drive().getParam(p.name);
    const bool known = m_session.isConnected() && m_session.valuesAreComplete() && held.max > held.min;
    if (known) {
        p.min = std::min(held.min, p.value);
        p.max = std::max(held.max, p.value);
    }
    return m_binding.fill(p, known && p.min == held.min && p.max == held.max);
}

void ParameterPages::showDeviceType(int typeId)
{
    const QString unread = infoLabelText(QStringLiteral("HWSERIAL"), 0);
    m_forms.connect.HWMODEL->setText(typeId > 0 ? deviceModelName(typeId, true) : unread);
    m_forms.connect.HWVER->setText(typeId > 0 ? deviceVersion(typeId) : unread);
}

int ParameterPages::edit(const QList<QPair<QString, double>> &values)
{
    collect();
    int changed = 0;
    for (const auto &value : values) {
        SingleParam p = m_settings.edited().getParam(value.first);
        if (p.name != value.first || p.readonly || p.value == value.second || !m_binding.read(p))
            continue;
        p.value = value.second;
        changed += fillWithinLimits(p).found;
    }
    collect();
    emit unitsChanged();
    updateAllRules();
    return changed;
}

void ParameterPages::collect()
{
    for (int i = 0; i < m_settings.edited().getParamCount(); ++i) {
        if (const auto held = m_binding.read(m_settings.edited().getParam(i)))
            m_settings.edit(i, *held);
    }
}

QString ParameterPages::modelName() const
{
    return m_forms.connect.HWMODEL->text();
}

QString ParameterPages::deviceVersion(int typeId)
{
    return QString::number(typeId / 10 * 10); // the last digit is a revision that is not shown
}

QString ParameterPages::sanityWarnings() const
{
    const UnitConversion scale = units();
    SanityInputs in;
    in.homing = m_forms.machine.HME->currentIndex();
    in.homingThreshold = m_forms.machine.HMH->value();
    in.trackingThreshold = m_forms.faultLimits.FPT->value();
    in.controlMode = m_forms.goals.CM->currentIndex();
    in.limitVelocity = scale.velocity(m_forms.goals.CVL->value());
    in.faultVelocity = scale.velocity(m_forms.faultLimits.FEV->value(), UnitConversion::Scale::Raw);
    return ::sanityWarnings(in);
}

void ParameterPages::showConnection(Reach reach)
{
    for (QWidget *button :
         {m_forms.machine.start_homing, m_forms.machine.abort_homing, m_forms.machine.measureRLbutton})
        enableByReach(button, reach);
    m_forms.machine.measureRLbutton->setVisible(m_session.deviceHasCapability(Connection::CapMeasureRL));
}

// --- Units --------------------------------------------------------------------------------------------------------

UnitConversion ParameterPages::units() const
{
    UnitConversion units;
    units.pif = m_loopFrequency;
    units.fbr = m_forms.machine.FBR->value();
    units.axs = m_forms.goals.AXS->value();
    units.mul = m_forms.goals.MUL->value();
    units.div = m_forms.goals.DIV->value();
    units.unit = axisUnits(m_forms.goals.AXT->currentIndex()).plural;
    return units;
}

UnitConversion ParameterPages::driveUnits() const
{
    if (reachOf(m_session) != Reach::Firmware || !m_settings.driveWasRead())
        return units();
    const auto value = [this](const char *name) { return m_settings.drive().getParam(QLatin1String(name)).value; };
    UnitConversion units;
    units.pif = value("PIF") > 0 ? value("PIF") : m_loopFrequency;
    units.fbr = value("FBR");
    units.axs = value("AXS");
    units.mul = value("MUL");
    units.div = value("DIV");
    units.unit = axisUnits(int(value("AXT"))).plural;
    return units;
}

QString ParameterPages::setpointLabel(double setpoint) const
{
    ActiveScale active;
    active.controlMode = int(std::lround(m_session.getActiveParamValue(QStringLiteral("CM"))));
    active.cvl = m_session.getActiveParamValue(QStringLiteral("CVL"));
    active.mmc = m_session.getActiveParamValue(QStringLiteral("MMC"));
    return driveUnits().setpointLabel(setpoint, active);
}

void ParameterPages::connectUnitLabels()
{
    const auto labels = m_window->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (!isUnitLabelName(label->objectName()))
            continue;
        const QString name = controlOfUnitLabel(label->objectName());
        if (auto *box = m_window->findChild<QSpinBox *>(name)) {
            connect(box, &QSpinBox::valueChanged, this, &ParameterPages::unitsChanged);
            m_unitLabels.append({label, [box] { return double(box->value()); }});
        } else if (auto *decimals = m_window->findChild<QDoubleSpinBox *>(name)) {
            connect(decimals, &QDoubleSpinBox::valueChanged, this, &ParameterPages::unitsChanged);
            m_unitLabels.append({label, [decimals] { return decimals->value(); }});
        } else {
            qDebug().noquote() << "spinbox named " + name + " not found!";
        }
    }
    const Ui_GoalsPage &goals = m_forms.goals;
    for (const QSpinBox *box : {goals.MUL, goals.DIV, m_forms.machine.FBR})
        connect(box, &QSpinBox::valueChanged, this, &ParameterPages::unitsChanged);
    connect(goals.AXS, &QDoubleSpinBox::valueChanged, this, &ParameterPages::unitsChanged);
}

void ParameterPages::updateUnitLabels()
{
    const UnitConversion scale = units();
    for (const UnitLabel &unit : qAsConst(m_unitLabels))
        unit.label->setText(scale.labelBySuffix(unit.value(), unit.label->objectName()));
    m_forms.goals.SCALINGr->setText(scale.scalingText());
}
