/// \file
/// Parameters into controls and back. A control belongs to the parameter whose mnemonic is its object name.
#ifndef VELBRIN_UI_CONTROLBINDING_H
#define VELBRIN_UI_CONTROLBINDING_H

#include "editedsettings.h"

#include <QHash>
#include <QString>
#include <QVector>
#include <optional>

class QComboBox;
class QWidget;

/// Fills and reads the controls among the descendants of one widget (dialogs that are its children included): a spin
/// box, else a double spin box, a combo box, a label. Each is looked up once, when its parameter first comes up. Knows
/// nothing of edits: EditedSettings does. User-interface thread.
class ControlBinding
{
public:
    explicit ControlBinding(QWidget *root) : m_root(root) {}

    /// What became of a parameter.
    struct Filled
    {
        bool found = false;              ///< there is a control of that name
        std::optional<ShownValue> shown; ///< none for labels and bit fields, which show exactly what came in
    };
    /// Shows a parameter in its control: range, then value, held within the range; a bit field in all of its controls.
    /// Limits that a drive has reported (`fromDrive`) stand in the control's tool tip.
    /// Limits that no drive has reported yet (both 0) leave the control's own range, widened where the value lies
    /// outside. A value that a combo box has no item for gets an item "Value n".
    Filled fill(const SingleParam &p, bool fromDrive = false);
    /// Leaves a parameter that nobody has read or set as the form has it, a combo box at the start value. The control
    /// stands for the held value, not for what it shows, until somebody edits it.
    Filled keepStartValue(const SingleParam &p, int startValue);
    /// What the parameter's control holds. Nothing where nothing can be edited: labels, read-only parameters,
    /// parameters without a control and withdrawn ones.
    std::optional<double> read(const SingleParam &p) const;
    /// Withdraws the control of a parameter that the connected model lacks: it is emptied and disabled, and its tool
    /// tip says why. The other way round it is enabled and its own tool tip comes back. The caption goes with its
    /// control; labels are left alone. To be called after fill().
    void setSupported(const QString &name, bool supported);

private:
    /// What belongs to one mnemonic.
    struct Control
    {
        QWidget *widget = nullptr;
        QVector<QWidget *> bitField; ///< one for each row of bitFieldControls(), null where there is none
        bool withdrawn = false;
    };

    Control &control(const QString &name) const;
    void showToolTip(QWidget *widget, const QString &addition, bool withdrawn);

    QWidget *m_root;
    mutable QHash<QString, Control> m_controls; ///< by mnemonic, each as soon as it is asked for
    QHash<QWidget *, QString> m_ownToolTips;    ///< as the forms have them
};

/// Text of a read-only information label. Identity values of 0 or less have not been read from a drive and say so.
QString infoLabelText(const QString &name, double value);
/// Chooses the item for a value; one that no item stands for gets the last item, "Value n", which goes when it is no
/// longer needed.
void selectComboValue(QComboBox *combo, int value);
/// The value that the current item stands for, -1 when there is none.
int comboValue(const QComboBox *combo);

#endif
