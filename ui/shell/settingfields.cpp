#include "settingfields.h"

#include "catalogue.h"
#include "controlbinding.h"
#include "numbertext.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("SettingFields", text);
}

QString plain(const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText().trimmed();
}

/// By kind as the binding looks for them, which a label of the same name must not get in the way of.
QWidget *findControl(QWidget *window, const QString &name)
{
    if (auto *box = window->findChild<QAbstractSpinBox *>(name))
        return box;
    if (auto *combo = window->findChild<QComboBox *>(name))
        return combo;
    if (auto *check = window->findChild<QCheckBox *>(name))
        return check;
    return window->findChild<QLabel *>(name);
}

/// As the form shows it: "&&" is one "&" there.
QString withoutMnemonic(QString text)
{
    static const QRegularExpression mark(QStringLiteral("&(.)"));
    return text.replace(mark, QStringLiteral("\\1"));
}

QString captionOf(QWidget *window, QWidget *control, const QString &name)
{
    if (const auto *check = qobject_cast<QCheckBox *>(control))
        return withoutMnemonic(check->text());
    const auto labels = window->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (control && label->buddy() == control)
            return withoutMnemonic(label->text());
    }
    if (control && !control->accessibleName().isEmpty())
        return QStringLiteral("[%1] %2").arg(name, control->accessibleName());
    const auto *caption = window->findChild<QLabel *>(name + QLatin1Char('l'));
    return caption ? QStringLiteral("[%1] %2").arg(name, caption->text()) : QStringLiteral("[%1]").arg(name);
}

QString unitOf(const QWidget *control)
{
    if (const auto *box = qobject_cast<const QSpinBox *>(control))
        return box->suffix().trimmed();
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(control))
        return box->suffix().trimmed();
    return QString();
}

int pageOf(const QWidget *window, QWidget *control)
{
    const auto *pages = window->findChild<QStackedWidget *>(QStringLiteral("pages"));
    for (int i = 0; control && pages && i < pages->count(); ++i) {
        if (pages->widget(i)->isAncestorOf(control))
            return i;
    }
    return -1;
}

} // namespace

bool sameValue(double first, double second)
{
    return std::abs(first - second) <= 1e-9 * std::max({1.0, std::abs(first), std::abs(second)});
}

double SettingField::valueOf(double parameterValue) const
{
    if (bits)
        return choiceOfBits(*bits, int(parameterValue));
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(control)) {
        const double digits = std::pow(10.0, box->decimals());
        return std::round(parameterValue * digits) / digits;
    }
    return parameterValue;
}

double SettingField::shown() const
{
    if (const auto *box = qobject_cast<const QSpinBox *>(control))
        return box->value();
    if (const auto *box = qobject_cast<const QDoubleSpinBox *>(control))
        return box->value();
    if (const auto *combo = qobject_cast<const QComboBox *>(control))
        return comboValue(combo);
    const auto *check = qobject_cast<const QCheckBox *>(control);
    return check && check->isChecked() ? 1.0 : 0.0;
}

void SettingField::show(double value) const
{
    if (auto *box = qobject_cast<QSpinBox *>(control.data()))
        box->setValue(int(value));
    else if (auto *box = qobject_cast<QDoubleSpinBox *>(control.data()))
        box->setValue(value);
    else if (auto *combo = qobject_cast<QComboBox *>(control.data()))
        selectComboValue(combo, int(value));
    else if (auto *check = qobject_cast<QCheckBox *>(control.data()))
        check->setChecked(value != 0.0);
}

QString SettingField::text(double value) const
{
    const QString bare = bareText(value);
    return unit.isEmpty() ? bare : QStringLiteral("%1 %2").arg(bare, unit);
}

QString SettingField::bareText(double value) const
{
    if (qobject_cast<const QCheckBox *>(control))
        return value != 0.0 ? tr("on") : tr("off");
    if (const auto *combo = qobject_cast<const QComboBox *>(control)) {
        const int index = int(value);
        const bool isItem = index >= 0 && index < combo->count() && !combo->itemData(index).isValid();
        return isItem ? combo->itemText(index) : tr("Value %1").arg(index);
    }
    return shortNumber(valueOf(value));
}

SettingFields::SettingFields(QWidget *window)
{
    const Parameters catalogue = driveParameterCatalogue();
    for (int i = 0; i < catalogue.getParamCount(); ++i) {
        const QString name = catalogue.getParam(i).name;
        const auto &controls = bitFieldControls(name);
        for (const BitFieldControl &bits : controls)
            add(window, QString::fromLatin1(bits.name), name, &bits);
        if (controls.isEmpty())
            add(window, name, name, nullptr);
    }
}

void SettingFields::add(QWidget *window, const QString &name, const QString &parameter, const BitFieldControl *bits)
{
    SettingField field;
    field.name = name;
    field.parameter = parameter;
    field.bits = bits;
    field.control = findControl(window, name);
    field.caption = captionOf(window, field.control, name);
    field.unit = unitOf(field.control);
    field.help = field.control ? plain(field.control->toolTip()) : QString();
    field.page = pageOf(window, field.control);
    field.isEditable = field.control && !qobject_cast<QLabel *>(field.control.data());
    m_fields.push_back(field);
}

const SettingField *SettingFields::find(const QString &name) const
{
    for (const SettingField &field : m_fields) {
        if (field.name == name || field.parameter == name)
            return &field;
    }
    return nullptr;
}

const SettingField *SettingFields::of(const QObject *control) const
{
    for (const SettingField &field : m_fields) {
        if (field.control && field.control == control)
            return &field;
    }
    return nullptr;
}
