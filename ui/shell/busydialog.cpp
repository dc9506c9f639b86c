#include "busydialog.h"

#include <QCloseEvent>

BusyDialog::BusyDialog(QWidget *parent) : QDialog(parent)
{
    m_form.setupUi(this);
    setModal(true);
    setSizeGripEnabled(false);
}

void BusyDialog::closeEvent(QCloseEvent *event)
{
    event->ignore();
}
