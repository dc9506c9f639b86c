#include "firmwaredialog.h"

#include <QCloseEvent>
#include <QScrollBar>

FirmwareDialog::FirmwareDialog(QWidget *parent) : QDialog(parent)
{
    form.setupUi(this);
    form.progressBar->hide();
    // The range grows with every message, and when the progress bar takes some of the log's height.
    QScrollBar *scrollBar = form.log->verticalScrollBar();
    connect(scrollBar, &QScrollBar::rangeChanged, scrollBar, [scrollBar](int, int end) { scrollBar->setValue(end); });
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
