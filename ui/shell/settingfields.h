/// \file
/// Every setting with the control that stands for it: what it is called, where it is, how its value reads.
#ifndef VELBRIN_UI_SETTINGFIELDS_H
#define VELBRIN_UI_SETTINGFIELDS_H

#include "bitfields.h"

#include <QPointer>
#include <QString>
#include <QWidget>
#include <vector>

/// One control, or a setting that has none. A bit field has one field a control. A value is the control's own: a
/// number, the index of a choice, 0 or 1 of a check box.
struct SettingField
{
    QString name;      ///< object name of the control, the mnemonic in its caption: "KVP", "CEN"
    QString parameter; ///< the setting that it is (a part of): "KVP", "FLAGS"
    const BitFieldControl *bits = nullptr;
    QPointer<QWidget> control;
    QString caption; ///< "[KVP] Velocity P gain"
    QString unit;    ///< "A"; empty when there is none
    QString help;    ///< its tool tip as plain text, as the form has it
    int page = -1;   ///< of the page list; -1 when it is on none
    bool isEditable = false;

    /// Of the setting's value, in display units.
    double valueOf(double parameterValue) const;
    /// What the control holds.
    double shown() const;
    void show(double value) const;
    /// As the control would write it, unit included: "13 A", "Position control", "on".
    QString text(double value) const;
    /// The same without the unit.
    QString bareText(double value) const;
};

/// All of a window, looked up once, in the order of the catalogue. To be built before anything has changed tool tips.
class SettingFields
{
public:
    explicit SettingFields(QWidget *window);
    const std::vector<SettingField> &all() const { return m_fields; }
    /// By the control's name, or the setting's where it has no control of its own; null when there is none.
    const SettingField *find(const QString &name) const;
    const SettingField *of(const QObject *control) const;

private:
    void add(QWidget *window, const QString &name, const QString &parameter, const BitFieldControl *bits);

    std::vector<SettingField> m_fields;
};

/// Whether two values are the same to a drive and to a reader: a control's decimals are no difference.
bool sameValue(double first, double second);

#endif
