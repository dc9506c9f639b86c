/// \file
/// The box that stands over the window while the drive must not be disturbed.
#ifndef VELBRIN_UI_BUSYDIALOG_H
#define VELBRIN_UI_BUSYDIALOG_H

#include "ui_busydialog.h"

#include <QDialog>

/// Only the program closes it: Esc and the close box are ignored (Esc still disables the drive, see EscapeFilter).
class BusyDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BusyDialog(QWidget *parent);

    void reject() override {}

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    Ui_busyDialog m_form;
};

#endif
