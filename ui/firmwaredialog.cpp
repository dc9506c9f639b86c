#include "firmwaredialog.h"

#include <QCloseEvent>
#include <QScrollBar>

FirmwareDialog::FirmwareDialog(QWidget *parent) : QDialog(parent)
{
    form.setupUi(this);
    form.progressBar->hide();
}

void FirmwareDialog::begin()
{
    setModal(true);
    if (isVisible())
        return;
    form.log->clear();
    form.progressBar->hide();
    form.openFile->setEnabled(true);
    form.close->setEnabled(true);
    form.resetToFactoryState->setEnabled(true);
    show();
}

void FirmwareDialog::appendMessage(const QString &html)
{
    form.log->appendHtml(html);
    form.log->verticalScrollBar()->setValue(form.log->verticalScrollBar()->maximum());
}

void FirmwareDialog::setProgress(int sent, int total)
{
    form.progressBar->setMaximum(total);
    form.progressBar->setValue(sent);
    form.progressBar->show();
}

void FirmwareDialog::setRunning()
{
    form.openFile->setEnabled(false);
    form.close->setEnabled(false);
    form.resetToFactoryState->setEnabled(false);
}

void FirmwareDialog::setFinished()
{
    form.close->setEnabled(true);
}

void FirmwareDialog::finish()
{
    hide();
    form.log->clear();
    form.progressBar->hide();
    form.openFile->setEnabled(true);
    form.close->setEnabled(true);
    form.resetToFactoryState->setEnabled(true);
}

bool FirmwareDialog::isRunning() const
{
    return isVisible() && !form.close->isEnabled();
}

void FirmwareDialog::reject()
{
    form.close->click(); // does nothing while it is disabled
}

void FirmwareDialog::closeEvent(QCloseEvent *event)
{
    event->ignore();
    reject();
}
