/// \file
/// Undo and redo over all pages: pending edits only, never the drive.
#ifndef VELBRIN_UI_EDITHISTORY_H
#define VELBRIN_UI_EDITHISTORY_H

#include "settingfields.h"

#include <QHash>
#include <QObject>
#include <QUndoStack>

/// Watches the controls of all settings. What the user changes becomes a step with a name, "KVP 360 -> 400"; what
/// another rule changes in its wake (MMC follows MCC) belongs to the same step; steps of one control with the arrow
/// keys or the wheel are one. What the program fills in is no step. User-interface thread.
class EditHistory : public QObject
{
    Q_OBJECT

public:
    explicit EditHistory(const SettingFields &fields, QObject *parent = nullptr);

    QUndoStack &steps() { return m_steps; }
    /// From now on the program fills controls in; until endFilling(). Nests.
    void beginFilling() { ++m_filling; }
    /// With a name ("mine.drc loaded") what has changed since is one step; without one it is the new state, and old
    /// steps still lead from it to where they were.
    void endFilling(const QString &step = QString());
    /// A step with this name whose undoing puts these values back, by name of field: what a read from the drive has
    /// replaced. Returns how many fields that changes; with none there is no step.
    int offerBack(const QHash<QString, double> &values, const QString &step);
    /// Another drive: no step of the former one must reach it.
    void clear() { m_steps.clear(); }
    void undo();
    void redo();

signals:
    /// A control holds another value, whoever changed it.
    void edited();
    /// By the user or a rule, not by filling in.
    void fieldChanged(const QString &name);
    /// For the status bar: "Undone: KVP 360 -> 400".
    void said(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class EditStep;
    void watch(const SettingField &field);
    void changed(const SettingField &field);
    void lookAgain();

    const SettingFields &m_fields;
    QUndoStack m_steps;
    QHash<QString, double> m_values; ///< of each control as last seen
    QString m_open;                  ///< the control whose steps still run together; empty when none
    bool m_inEvent = false;          ///< what changes now is in the wake of the change before it
    int m_filling = 0;
};

#endif
