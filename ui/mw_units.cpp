// Number fields: what they say about a refused number, and values in machine units beside them.
#include "mw.h"
#include "mwforms.h"
#include "numberbox.h"
#include "unitconversion.h"

#include <QDebug>
#include <QStatusBar>
#include <QToolTip>
#include <cmath>

namespace {
constexpr int REFUSAL_MS = 15000;
}

void MW::connectNumberFields()
{
    const auto fields = findChildren<NumberField *>();
    for (NumberField *field : fields) {
        connect(field, &NumberField::refused, this, [this, field](const QString &why) {
            statusBar()->showMessage(why, REFUSAL_MS);
            // Where the user looks, too; a box would take the keyboard away from the next field.
            if (const auto *box = qobject_cast<QWidget *>(field->parent()); box && box->isVisible())
                QToolTip::showText(box->mapToGlobal(QPoint(box->width(), 0)), why.toHtmlEscaped(), nullptr, QRect(),
                                   REFUSAL_MS);
        });
    }
}

UnitConversion MW::unitConversion() const
{
    UnitConversion units;
    units.pif = m_loopFrequency;
    units.fbr = m_form->FBR->value();
    units.axs = m_form->AXS->value();
    units.mul = m_form->MUL->value();
    units.div = m_form->DIV->value();
    units.unit = axisUnits(m_form->AXT->currentIndex()).plural;
    return units;
}

UnitConversion MW::driveUnitConversion() const
{
    if (!driveRunsItsFirmware() || !m_settings.driveWasRead())
        return unitConversion();
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

double MW::convertHWtoMachineVelocityUnits(double hwunits, bool isSetpoint, bool rawHWscale)
{
    return unitConversion().velocity(hwunits, isSetpoint, rawHWscale);
}

QString MW::convertHWtoMachineVelocityUnitsLabel(double hwunits, bool isSetpoint, bool rawHWscale)
{
    return unitConversion().velocityLabel(hwunits, isSetpoint, rawHWscale);
}

QString MW::convertHWtoMachinePositionUnitsLabel(double hwunits, bool rawHWscale)
{
    return unitConversion().positionLabel(hwunits, rawHWscale);
}

QString MW::convertHWtoMachineAccelerationUnitsLabel(double hwunits)
{
    return unitConversion().accelerationLabel(hwunits);
}

QString MW::convertHWtoMachineUnitsLabel(double hwunits, QString labelname)
{
    return unitConversion().labelBySuffix(hwunits, labelname);
}

QString MW::convertHWrefToUnitsLabel(double ref)
{
    ActiveScale active;
    active.controlMode = int(std::lround(m_connection.getActiveParamValue(QStringLiteral("CM"))));
    active.cvl = m_connection.getActiveParamValue(QStringLiteral("CVL"));
    active.mmc = m_connection.getActiveParamValue(QStringLiteral("MMC"));
    return driveUnitConversion().setpointLabel(ref, active);
}

void MW::connectDynamicSpinboxLabels()
{
    m_unitLabels.clear();
    const auto labels = findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (!isUnitLabelName(label->objectName()))
            continue;
        const QString name = controlOfUnitLabel(label->objectName());
        if (auto *box = findChild<QSpinBox *>(name))
            connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, &MW::updateUnitLabels);
        else if (auto *doubleBox = findChild<QDoubleSpinBox *>(name))
            connect(doubleBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &MW::updateUnitLabels);
        m_unitLabels.append(label);
    }
}

void MW::updateUnitLabels()
{
    const UnitConversion units = unitConversion();
    for (QLabel *label : qAsConst(m_unitLabels)) {
        const QString name = controlOfUnitLabel(label->objectName());
        if (const auto *box = findChild<QSpinBox *>(name))
            label->setText(units.labelBySuffix(box->value(), label->objectName()));
        else if (const auto *doubleBox = findChild<QDoubleSpinBox *>(name))
            label->setText(units.labelBySuffix(doubleBox->value(), label->objectName()));
        else
            qDebug().noquote() << "spinbox named " + name + " not found!";
    }
    on_stimulusTarget1_valueChanged(m_form->stimulusTarget1->value());
    on_stimulusTarget2_valueChanged(m_form->stimulusTarget2->value());
    m_form->SCALINGr->setText(units.scalingText());
}
