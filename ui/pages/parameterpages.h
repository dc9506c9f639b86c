/// \file
/// The pages that hold settings: values into their controls and back, units beside them, rules between them.
#ifndef VELBRIN_UI_PARAMETERPAGES_H
#define VELBRIN_UI_PARAMETERPAGES_H

#include "controlbinding.h"
#include "reach.h"
#include "unitconversion.h"

#include <QList>
#include <QObject>
#include <functional>

class Connection;
class ErrorWindow;
class QLabel;
class Ui_ConnectPage;
class Ui_FaultLimitsPage;
class Ui_GoalsPage;
class Ui_MachinePage;
class Ui_TuningPage;

/// Settings live on four pages, in one dialog, and as labels on the Connect page; each belongs to the control that has
/// its mnemonic, wherever that is in the window. What the user wants is EditedSettings' business, this shows it and
/// reads it back. Of the session it asks what is known about the connected drive. User-interface thread.
class ParameterPages : public QObject
{
    Q_OBJECT

public:
    /// Which of a pair was typed; the other one follows.
    enum class Typed { Low, High };
    /// The pages that settings stand on.
    struct Forms
    {
        const Ui_ConnectPage &connect;
        const Ui_GoalsPage &goals;
        const Ui_MachinePage &machine;
        const Ui_TuningPage &tuning;
        const Ui_FaultLimitsPage &faultLimits;
    };
    ParameterPages(QWidget *window, const Forms &forms, const Connection &session, EditedSettings &settings);

    /// Takes a list that was read or loaded and fills the controls; what a control clamped counts as held.
    void take(const Parameters &list, bool loadedFromFile);
    /// Puts values into the controls as if they had been typed, each within the limits of its control; names without a
    /// control that can be edited are passed over. Returns how many are another value than before.
    int edit(const QList<QPair<QString, double>> &values);
    /// Brings the settings up to what the controls hold.
    void collect();
    /// Of the drive or file that is shown, as it is shown.
    QString modelName() const;
    /// What does not fit together among the settings, for the message window; empty when all is well.
    QString sanityWarnings() const;
    void showConnection(Reach reach);

    /// For values beside their controls: as the pages have the scale.
    UnitConversion units() const;
    /// For what the drive does: as it has the scale. Without one, as the pages have it.
    UnitConversion driveUnits() const;
    /// A setpoint in what it makes the drive do.
    QString setpointLabel(double setpoint) const;
    void updateUnitLabels();

    /// Type number as it is shown.
    static QString deviceVersion(int typeId);

    // Rules between controls (parameterrules.cpp): what was chosen or typed changes what is seen or possible elsewhere.
    void updateVisibility();
    void updateAllRules();
    void makePolesEven();
    void orderCurrents(Typed typed);     ///< continuous (MCC) and peak (MMC)
    void orderTravelLimits(Typed typed); ///< HLL and HHL
    void setpointInputChosen(int index);
    void axisTypeChosen(int index);
    void feedbackDeviceChosen();
    void underVoltageTyped(double volts);
    void toggleAdvanced();
    bool showsAdvanced() const { return m_showAdvanced; }

signals:
    /// A rule has changed a field by itself: its mnemonic, and why.
    void corrected(const QString &field, const QString &text);
    /// A control that values in machine units depend on has changed.
    void unitsChanged();
    /// A drive was read that can be told by its identity.
    void driveRead();
    /// A bootloader has told its identity, and nothing else.
    void bootloaderRead(int version);

private:
    void connectUnitLabels();
    void hideForGood();
    void fillTorqueFunctions();
    void fillControls();
    ControlBinding::Filled fillControl(const SingleParam &p, bool modelLacksIt);
    ControlBinding::Filled fillWithinLimits(SingleParam p);
    void showDeviceType(int typeId);

    /// A label that shows what its control holds in machine units.
    struct UnitLabel
    {
        QLabel *label;
        std::function<double()> value; ///< of its control
    };

    QWidget *m_window;
    Forms m_forms;
    const Connection &m_session;
    EditedSettings &m_settings;
    ControlBinding m_binding;
    QList<UnitLabel> m_unitLabels;
    double m_loopFrequency = 2500.0; ///< control cycles a second (PIF) of the drive that was read last, Hz
    bool m_showAdvanced = false;
};

#endif
