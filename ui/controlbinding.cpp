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

void fillBitField(QWidget *root, const QVector<BitFieldControl> &controls, int value)
{
    for (const BitFieldControl &field : controls) {
        const QString name = QString::fromLatin1(field.name);
        const int choice = choiceOfBits(field, value);
        if (auto *box = root->findChild<QCheckBox *>(name))
            box->setChecked(choice != 0);
        else if (auto *combo = root->findChild<QComboBox *>(name))
            combo->setCurrentIndex(choice);
    }
}

int collectBitField(const QWidget *root, const QVector<BitFieldControl> &controls)
{
    int value = 0;
    for (const BitFieldControl &field : controls) {
        const QString name = QString::fromLatin1(field.name);
        if (auto *box = root->findChild<QCheckBox *>(name))
            value |= bitsOfChoice(field, box->isChecked() ? 1 : 0);
        else if (auto *combo = root->findChild<QComboBox *>(name))
            value |= bitsOfChoice(field, combo->currentIndex());
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

bool ControlBinding::fill(const SingleParam &p, bool fromDrive)
{
    const auto &bitField = bitFieldControls(p.name);
    if (!bitField.isEmpty()) {
        fillBitField(m_root, bitField, toInt(p.value));
        return true;
    }
    QWidget *control = findControl(m_root, p.name);
    if (!control)
        return false;
    if (auto *label = qobject_cast<QLabel *>(control)) {
        label->setText(infoLabelText(p.name, p.value));
        return true;
    }
    double shown = 0.0;
    if (!std::isfinite(p.value)) { // nothing that a control could show: it keeps what it has, and that counts
        readControl(control, shown);
        m_filled.insert(p.name, {shown, shown});
        return true;
    }
    double exact = withinLimits(p);
    if (auto *box = qobject_cast<QSpinBox *>(control)) {
        shown = fillSpinBox(box, p, toInt);
    } else if (auto *box = qobject_cast<QDoubleSpinBox *>(control)) {
        shown = fillSpinBox(box, p, [](double value) { return value; });
    } else if (auto *combo = qobject_cast<QComboBox *>(control)) {
        selectComboValue(combo, toInt(p.value));
        shown = comboValue(combo);
        exact = p.value; // a choice is not clamped: "Value n" shows what the drive holds
    }
    m_filled.insert(p.name, {shown, exact});
    if (NumberField *field = NumberField::of(control)) {
        const bool known = fromDrive && hasLimits(p);
        field->setLimitsAreDrives(known);
        field->refresh();
        showToolTip(control, known ? field->driveLimitsText() : QString(), m_withdrawn.contains(p.name));
    }
    return true;
}

void ControlBinding::keepStartValue(const SingleParam &p, int startValue)
{
    QWidget *control = findControl(m_root, p.name);
    if (auto *combo = qobject_cast<QComboBox *>(control))
        selectComboValue(combo, startValue);
    double shown = 0.0;
    if (readControl(control, shown))
        m_filled.insert(p.name, {shown, p.value});
}

double ControlBinding::collect(const SingleParam &p) const
{
    const auto &bitField = bitFieldControls(p.name);
    if (!bitField.isEmpty())
        return collectBitField(m_root, bitField);
    double now = 0.0;
    if (p.readonly || m_withdrawn.contains(p.name) || !readControl(findControl(m_root, p.name), now))
        return p.value;
    const auto filled = m_filled.find(p.name);
    return filled != m_filled.end() && filled->shown == now ? filled->exact : now;
}

void ControlBinding::setSupported(const QString &name, bool supported)
{
    QWidget *control = findControl(m_root, name);
    if (!control || qobject_cast<QLabel *>(control))
        return;
    if (!supported)
        setBlank(control, true); // each time: what was filled in before is nothing that the drive has
    if (supported != m_withdrawn.contains(name))
        return;
    if (supported)
        setBlank(control, false);
    QList<QWidget *> widgets{control};
    for (QLabel *label : m_root->findChildren<QLabel *>())
        if (label->buddy() == control)
            widgets.append(label);
    for (QWidget *widget : widgets) {
        widget->setEnabled(supported);
        const NumberField *field = NumberField::of(widget);
        showToolTip(widget, field && field->limitsAreDrives() ? field->driveLimitsText() : QString(), !supported);
    }
    if (supported)
        m_withdrawn.remove(name);
    else
        m_withdrawn.insert(name);
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
