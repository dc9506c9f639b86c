/// \file
/// The box before an Apply: what will change, what is worth a second look, and the way back.
#ifndef VELBRIN_UI_APPLYBOX_H
#define VELBRIN_UI_APPLYBOX_H

#include "settingchanges.h"

#include <QDialog>

class QVBoxLayout;

/// Modal; accepted means "apply". Where something warns, Return goes back.
class ApplyBox : public QDialog
{
    Q_OBJECT

public:
    /// `warnings` is HTML, empty when nothing warns.
    ApplyBox(const QList<SettingChange> &changes, const QString &warnings, QWidget *parent);

private:
    void addWarnings(QVBoxLayout *layout, const QString &warnings, const QStringList &growth);
    void addTable(QVBoxLayout *layout, const QList<SettingChange> &changes);
};

#endif
