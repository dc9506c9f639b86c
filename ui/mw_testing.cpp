// Testing page: stimulus, capture, plot, and saving what was plotted.
#include "errorwindow.h"
#include "helpview.h"
#include "mw.h"
#include "mwforms.h"

#include <QCheckBox>
#include <QDebug>
#include <QDir>
#include <QFileDialog>
#include <QStatusBar>
#include <QTimer>

namespace {
constexpr int SAVE_HINT_MS = 15000;
}

void MW::on_stimulusTarget1_editingFinished()
{
    const bool running = m_form->stimulusEnabled->isChecked();
    m_connection.setStimulus(m_form->stimulusTarget1->value(), m_form->stimulusDelay1->value(),
                             m_form->stimulusTarget2->value(), m_form->stimulusDelay2->value(), running);
    for (QPushButton *button : {m_form->setAbs1, m_form->setInc1, m_form->setAbs2, m_form->setInc2})
        button->setEnabled(!running && driveRunsItsFirmware());
}

void MW::on_stimulusDelay1_editingFinished()
{
    on_stimulusTarget1_editingFinished();
}

void MW::on_stimulusTarget2_editingFinished()
{
    on_stimulusTarget1_editingFinished();
}

void MW::on_stimulusDelay2_editingFinished()
{
    on_stimulusTarget1_editingFinished();
}

void MW::on_stimulusEnabled_stateChanged(int)
{
    // No motion to an old target in place of one that was typed and refused.
    if (m_form->stimulusEnabled->isChecked() &&
        anyNumberRefused({m_form->stimulusTarget1, m_form->stimulusDelay1, m_form->stimulusTarget2,
                          m_form->stimulusDelay2})) {
        m_form->stimulusEnabled->setChecked(false);
        return;
    }
    on_stimulusTarget1_editingFinished();
}

void MW::on_stimulusTarget1_valueChanged(int arg1)
{
    m_form->TSR1r->setText(convertHWrefToUnitsLabel(arg1));
}

void MW::on_stimulusTarget2_valueChanged(int arg1)
{
    m_form->TSR2r->setText(convertHWrefToUnitsLabel(arg1));
}

void MW::stopStimulus()
{
    m_form->stimulusEnabled->setChecked(false);
    m_connection.setStimulus(0.0, 1.0, 0.0, 1.0, false);
}

void MW::setpointChanged(double val)
{
    m_lastSetpoint = QString::number(val);
    m_form->setpointNow->setText(tr("Setpoint now: %1").arg(m_lastSetpoint));
}

void MW::changeScopeButtonText(QString text)
{
    m_form->ScopeCaptureNow->setText(text);
}

void MW::on_ScopeCaptureNow_clicked()
{
    if (!m_form->ScopeCaptureNow->isEnabled())
        return;
    // A running series is not interrupted by a question.
    if (!m_form->repeatCapture->isChecked() && checkIfParamsChangedAndAskUser(AskWithAbort))
        return;
    const double rate = m_form->ScopeSampleRate->currentText().section(QLatin1Char(' '), 0, 0).toDouble();
    // Channel order: the PWM channels come before the debug and flux channels, unlike on the page.
    const QCheckBox *const channels[] = {
        m_form->ScopeTorqRef, m_form->ScopeTorqMeas, m_form->ScopeVelRef,      m_form->ScopeVelMeas,
        m_form->ScopePosRef,  m_form->ScopePosMeas,  m_form->ScopePosFerror,   m_form->ScopeOutVoltage,
        m_form->ScopeHVBus,   m_form->scopePWM1,     m_form->scopePWM2,        m_form->scopePWM3,
        m_form->ScopeDebug,   m_form->ScopeDebug2,   m_form->scopeFluxCurrent, m_form->scopeFluxVoltage};
    QList<bool> selected;
    for (const QCheckBox *channel : channels)
        selected.append(channel->isChecked());
    m_connection.setupCapture(rate, m_form->captureTrigger->currentIndex(), selected);
    m_connection.command(Connection::TaskInitScope, true);
    m_connection.checkErrors();
}

void MW::plotCapture(QList<CaptureData> capture)
{
    m_captures = capture;
    showPlotPage(HelpView::Zoom::Keep);
    m_helpEnabled = false;
    if (m_form->repeatCapture->isChecked())
        on_ScopeCaptureNow_clicked();
}

void MW::showPlotPage(HelpView::Zoom zoom)
{
    const QString page = m_plotter.generatePlotPage(m_captures, m_settings.drive().getParamsHTMLList(), m_form->HWMODEL->text());
    m_helpTimer->stop(); // a help page that was still loading is given up, which says nothing about the network
    m_form->offlineHelpNotification->hide();
    const QUrl base(QLatin1String("file:///") + QDir::currentPath() + QLatin1String("/flot/examples/"));
    m_helpView->showPlot(page, base, zoom);
}

void MW::saveTestResults_clicked()
{
    const QString file = askFile(QFileDialog::AcceptSave, tr("Save graphs to file"), QStringLiteral("~/graphs.png"),
                                 tr("Portable Network Graphics (*.png);;Raw data as text file (*.csv)"));
    qDebug() << "Print file name is " << file;
    if (file.isEmpty())
        return;
    // The ending chooses the format; any other writes nothing.
    if (file.endsWith(QLatin1String(".png"), Qt::CaseInsensitive)) {
        m_saveAsPdfButton->setEnabled(false);
        m_helpView->savePng(file);
    } else if (!file.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive)) {
        statusBar()->showMessage(tr("Nothing saved: give the file a name that ends in .png or .csv"), SAVE_HINT_MS);
    } else if (!m_plotter.saveCaptureDataCSV(m_captures, file)) {
        m_errorWindow->tell({MessageKind::FileFailed, tr("Error writing graphs to file %1").arg(file.toHtmlEscaped())});
    }
}

void MW::pictureSaved(const QString &failure)
{
    m_saveAsPdfButton->setEnabled(true);
    m_errorWindow->tell({MessageKind::FileFailed, failure});
    if (m_closeWhenSaved && failure.isEmpty())
        close();
    m_closeWhenSaved = false;
}
