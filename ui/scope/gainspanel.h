/// \file
/// The gains on the Testing page: the same settings as on the Tuning page, a hand's breadth from the step.
#ifndef VELBRIN_UI_GAINSPANEL_H
#define VELBRIN_UI_GAINSPANEL_H

#include <QGroupBox>
#include <QList>

class QPushButton;
class QSpinBox;
class WholeNumberBox;

/// Each field follows the control of the Tuning page and the other way round: there is one value, in two places.
/// Applying is the Apply button's business. User-interface thread.
class GainsPanel : public QGroupBox
{
    Q_OBJECT

public:
    /// `window` holds the controls, found by mnemonic.
    GainsPanel(QWidget *window, QWidget *parent);

    /// To be called when a drive was read: limits, and what the model lacks.
    void refresh();
    /// What the Apply button says, and whether it can be pressed.
    void showApply(const QString &text, bool isEnabled);

signals:
    void applyWanted();

private:
    struct Field
    {
        QSpinBox *source;
        WholeNumberBox *here;
    };
    void couple(QSpinBox *source, WholeNumberBox *here);

    QList<Field> m_fields;
    QPushButton *m_apply;
};

#endif
