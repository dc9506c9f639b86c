/// \file
/// Parameters into controls and back. A control belongs to the parameter whose mnemonic is its object name.
#ifndef CONTROLBINDING_H
#define CONTROLBINDING_H

#include "singleparam.h"

#include <QHash>
#include <QSet>
#include <QString>

class QComboBox;
class QWidget;

/// Fills and reads the controls among the descendants of one widget (dialogs that are its children included). Looks for
/// a spin box first, then a double spin box, a combo box, a label. Remembers what it filled in, so that a control that
/// nobody edited gives back exactly the value that came in, whatever the control's decimals made of it.
/// User-interface thread.
class ControlBinding
{
public:
    explicit ControlBinding(QWidget *root) : m_root(root) {}

    /// Shows a parameter in its control: range, then value, held within the range; a bit field in all of its controls.
    /// Limits that a drive has reported (`fromDrive`) stand in the control's tool tip.
    /// Limits that no drive has reported yet (both 0) leave the control's own range, widened where the value lies
    /// outside. A value that a combo box has no item for gets an item "Value n". Returns false when there is no
    /// control of that name.
    bool fill(const SingleParam &p, bool fromDrive = false);
    /// Leaves a parameter that nobody has read or set as the form has it, a combo box at the start value. The control
    /// stands for the held value, not for what it shows, until somebody edits it.
    void keepStartValue(const SingleParam &p, int startValue);
    /// The parameter's value as its control stands. Labels, read-only parameters, parameters without a control and
    /// withdrawn ones give back the held value: nothing can be edited there.
    double collect(const SingleParam &p) const;
    /// Withdraws the control of a parameter that the connected model lacks: it is emptied and disabled, and its tool
    /// tip says why. The other way round it is enabled and its own tool tip comes back. The caption goes with its
    /// control; labels are left alone. To be called after fill().
    void setSupported(const QString &name, bool supported);

private:
    struct Filled
    {
        double shown; ///< what the control made of it
        double exact; ///< what came in, within the drive's limits
    };

    void showToolTip(QWidget *widget, const QString &addition, bool withdrawn);

    QWidget *m_root;
    QHash<QString, Filled> m_filled;
    QHash<QWidget *, QString> m_ownToolTips; ///< as the forms have them
    QSet<QString> m_withdrawn;               ///< mnemonics
};

/// Text of a read-only information label. Identity values of 0 or less have not been read from a drive and say so.
QString infoLabelText(const QString &name, double value);
/// Chooses the item for a value; one that no item stands for gets the last item, "Value n", which goes when it is no
/// longer needed.
void selectComboValue(QComboBox *combo, int value);
/// The value that the current item stands for, -1 when there is none.
int comboValue(const QComboBox *combo);

#endif
