#include "controlbinding.h"

#include "bitfields.h"
#include "numberbox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QSpinBox>
#include <algorithm>
#include <cmath>
#include <limits>

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("MW", text);
}

/// Nearest integer, held within int: a settings file may hold any number.
int toInt(double value)
{
    constexpr double lowest = std::numeric_limits<int>::min(), highest = std::numeric_limits<int>::max();
    return std::isnan(value) ? 0 : int(std::round(std::clamp(value, lowest, highest)));
}

bool hasLimits(const SingleParam &p)
{
    return p.max >= p.min && !(p.min == 0.0 && p.max == 0.0);
}

double withinLimits(const SingleParam &p)
{
    return hasLimits(p) ? std::clamp(p.value, p.min, p.max) : p.value;
}

/// Range, then value; returns what the control made of it.
template <typename SpinBox, typename Convert> double fillSpinBox(SpinBox *box, const SingleParam &p, Convert convert)
{
    const auto value = convert(p.value);
    if (hasLimits(p))
        box->setRange(convert(p.min), convert(p.max));
    else
        box->setRange(std::min(box->minimum(), value), std::max(box->maximum(), value));
    box->setValue(value);
    return box->value();
}

QWidget *findControl(const QWidget *root, const QString &name)
{
    if (auto *box = root->findChild<QSpinBox *>(name))
        return box;
    if (auto *box = root->findChild<QDoubleSpinBox *>(name))
        return box;
    if (auto *combo = root->findChild<QComboBox *>(name))
        return combo;
    return root->findChild<QLabel *>(name);
}

QWidget *findBitControl(const QWidget *root, const QString &name)
{
    if (auto *box = root->findChild<QCheckBox *>(name))
        return box;
    return root->findChild<QComboBox *>(name);
}

/// What an editable control holds, or nothing for a label.
bool readControl(const QWidget *control, double &value)
{
    if (auto *box = qobject_cast<const QSpinBox *>(control))
        value = box->value();
    else if (auto *box = qobject_cast<const QDoubleSpinBox *>(control))
        value = box->value();
    else if (auto *combo = qobject_cast<const QComboBox *>(control))
        value = comboValue(combo);
    else
        return false;
    return true;
}

void fillBitField(const QVector<QWidget *> &widgets, const QVector<BitFieldControl> &fields, int value)
{
    for (int i = 0; i < fields.size(); ++i) {
        const int choice = choiceOfBits(fields[i], value);
        if (auto *box = qobject_cast<QCheckBox *>(widgets[i]))
            box->setChecked(choice != 0);
        else if (auto *combo = qobject_cast<QComboBox *>(widgets[i]))
            combo->setCurrentIndex(choice);
    }
}

int readBitField(const QVector<QWidget *> &widgets, const QVector<BitFieldControl> &fields)
{
    int value = 0;
    for (int i = 0; i < fields.size(); ++i) {
        if (auto *box = qobject_cast<const QCheckBox *>(widgets[i]))
            value |= bitsOfChoice(fields[i], box->isChecked() ? 1 : 0);
        else if (auto *combo = qobject_cast<const QComboBox *>(widgets[i]))
            value |= bitsOfChoice(fields[i], combo->currentIndex());
    }
    return value;
}

/// Empties a control that there is nothing to show in. A spin box can only do that at its minimum.
void setBlank(QWidget *control, bool blank)
{
    if (auto *box = qobject_cast<QAbstractSpinBox *>(control))
        box->setSpecialValueText(blank ? QStringLiteral("\u2013") : QString());
    if (!blank)
        return;
    if (auto *box = qobject_cast<QSpinBox *>(control))
        box->setValue(box->minimum());
    else if (auto *box = qobject_cast<QDoubleSpinBox *>(control))
        box->setValue(box->minimum());
    else if (auto *combo = qobject_cast<QComboBox *>(control))
        combo->setCurrentIndex(-1);
}

// The item "Value n" is the only one that carries data; every other stands for its index.
bool hasValueItem(const QComboBox *combo)
{
    return combo->count() > 0 && combo->itemData(combo->count() - 1).isValid();
}

} // namespace

ControlBinding::Control &ControlBinding::control(const QString &name) const
{
    const auto known = m_controls.find(name);
    if (known != m_controls.end())
        return *known;
    Control control;
    for (const BitFieldControl &field : bitFieldControls(name))
        control.bitField.append(findBitControl(m_root, QString::fromLatin1(field.name)));
    if (control.bitField.isEmpty())
        control.widget = findControl(m_root, name);
    return *m_controls.insert(name, control);
}

ControlBinding::Filled ControlBinding::fill(const SingleParam &p, bool fromDrive)
{
    const Control &bound = control(p.name);
    if (!bound.bitField.isEmpty()) {
        fillBitField(bound.bitField, bitFieldControls(p.name), toInt(p.value));
        return {true, {}};
    }
    if (!bound.widget)
        return {};
    if (auto *label = qobject_cast<QLabel *>(bound.widget)) {
        label->setText(infoLabelText(p.name, p.value));
        return {true, {}};
    }
    double shown = 0.0;
    if (!std::isfinite(p.value)) { // nothing that a control could show: it keeps what it has, and that counts
        readControl(bound.widget, shown);
        return {true, ShownValue{shown, shown}};
    }
    double exact = withinLimits(p);
    if (auto *box = qobject_cast<QSpinBox *>(bound.widget)) {
        shown = fillSpinBox(box, p, toInt);
    } else if (auto *box = qobject_cast<QDoubleSpinBox *>(bound.widget)) {
        shown = fillSpinBox(box, p, [](double value) { return value; });
    } else if (auto *combo = qobject_cast<QComboBox *>(bound.widget)) {
        selectComboValue(combo, toInt(p.value));
        shown = comboValue(combo);
        exact = p.value; // a choice is not clamped: "Value n" shows what the drive holds
    }
    if (NumberField *field = NumberField::of(bound.widget)) {
        const bool known = fromDrive && hasLimits(p);
        field->setLimitsAreDrives(known);
        field->refresh();
        showToolTip(bound.widget, known ? field->driveLimitsText() : QString(), bound.withdrawn);
    }
    return {true, ShownValue{shown, exact}};
}

ControlBinding::Filled ControlBinding::keepStartValue(const SingleParam &p, int startValue)
{
    QWidget *widget = control(p.name).widget;
    if (auto *combo = qobject_cast<QComboBox *>(widget))
        selectComboValue(combo, startValue);
    double shown = 0.0;
    if (!readControl(widget, shown))
        return {widget != nullptr, {}};
    return {true, ShownValue{shown, p.value}};
}

std::optional<double> ControlBinding::read(const SingleParam &p) const
{
    const Control &bound = control(p.name);
    if (!bound.bitField.isEmpty())
        return readBitField(bound.bitField, bitFieldControls(p.name));
    double now = 0.0;
    if (p.readonly || bound.withdrawn || !readControl(bound.widget, now))
        return {};
    return now;
}

void ControlBinding::setSupported(const QString &name, bool supported)
{
    Control &bound = control(name);
    if (!bound.widget || qobject_cast<QLabel *>(bound.widget))
        return;
    if (!supported)
        setBlank(bound.widget, true); // each time: what was filled in before is nothing that the drive has
    if (supported != bound.withdrawn)
        return;
    if (supported)
        setBlank(bound.widget, false);
    QList<QWidget *> widgets{bound.widget};
    for (QLabel *label : m_root->findChildren<QLabel *>())
        if (label->buddy() == bound.widget)
            widgets.append(label);
    for (QWidget *widget : widgets) {
        widget->setEnabled(supported);
        const NumberField *field = NumberField::of(widget);
        showToolTip(widget, field && field->limitsAreDrives() ? field->driveLimitsText() : QString(), !supported);
    }
    bound.withdrawn = !supported;
}

void ControlBinding::showToolTip(QWidget *widget, const QString &addition, bool withdrawn)
{
    if (!m_ownToolTips.contains(widget))
        m_ownToolTips.insert(widget, widget->toolTip());
    QString text = m_ownToolTips.value(widget);
    if (withdrawn)
        text = translated(QT_TRANSLATE_NOOP("MW", "not on this model"));
    else if (!addition.isEmpty())
        text += QLatin1String("<p>") + addition.toHtmlEscaped() + QLatin1String("</p>");
    widget->setToolTip(text);
}

QString infoLabelText(const QString &name, double value)
{
    static const QStringList identity = {QStringLiteral("HWSERIAL"), QStringLiteral("TCFWVER"), QStringLiteral("FWVER"),
                                         QStringLiteral("BUILDREVISION")};
    const int number = toInt(value);
    if (identity.contains(name) && number <= 0)
        return translated(QT_TRANSLATE_NOOP("MW", "This info updated only after Connect"));
    if (name == QLatin1String("BUILDREVISION"))
        return QString::number(number, 16).toUpper();
    return QString::number(number);
}

void selectComboValue(QComboBox *combo, int value)
{
    const int valueItem = hasValueItem(combo) ? combo->count() - 1 : -1;
    const int ordinaryItems = valueItem < 0 ? combo->count() : valueItem;
    if (value >= 0 && value < ordinaryItems) {
        combo->setCurrentIndex(value);
        if (valueItem >= 0)
            combo->removeItem(valueItem);
        return;
    }
    const QString text = translated(QT_TRANSLATE_NOOP("MW", "Value %1")).arg(value);
    if (valueItem < 0) {
        combo->addItem(text, value);
    } else {
        combo->setItemText(valueItem, text);
        combo->setItemData(valueItem, value);
    }
    combo->setCurrentIndex(ordinaryItems);
}

int comboValue(const QComboBox *combo)
{
    const QVariant value = combo->currentData();
    return value.isValid() ? value.toInt() : combo->currentIndex();
}
