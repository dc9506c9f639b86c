// Connect page: choosing a port, searching the bus, choosing a drive, and what changes with the connection.
#include "disablewatch.h"
#include "firmwaredialog.h"
#include "mw.h"
#include "mwforms.h"
#include "nodedialog.h"
#include "portlist.h"
#include "statepanels.h"

#include <QApplication>
#include <QCheckBox>
#include <QDebug>
#include <QStatusBar>

void MW::populateConnectionPortList()
{
    const QList<SerialPort> ports = serialPortsOfThisMachine();
    qDebug() << "List of ports:";
    for (const SerialPort &port : ports) {
        qDebug() << "port name:" << port.portName;
        qDebug() << "friendly name:" << port.description;
        qDebug() << "physical name:" << port.systemLocation;
        qDebug() << "enumerator name:" << port.manufacturer;
        qDebug() << "vendor ID:" << port.vendorId;
        qDebug() << "product ID:" << port.productId;
        qDebug() << "===================================";
    }
    // No completion: a typed "/dev/ttyS1" must not turn into the listed "/dev/ttyS10", which is another machine.
    m_form->communicationInterface->setCompleter(nullptr);
    const QString chosenBefore = m_form->communicationInterface->currentText();
    const bool refreshing = sender() == m_form->refreshPorts;
    PortList list = portListOf(ports);
    if (!m_options.virtualPort.isEmpty())
        addVirtualDrive(list, m_options.virtualPort);
    if (!m_options.port.isEmpty())
        preselectPort(list, m_options.port);
    m_form->communicationInterface->clear();
    m_form->communicationInterface->addItems(list.items);
    m_form->communicationInterface->setCurrentIndex(list.current);
    // A refresh does not throw away what was chosen or typed.
    if (refreshing && !chosenBefore.trimmed().isEmpty())
        m_form->communicationInterface->setCurrentText(chosenBefore);
}

QString MW::chosenPort() const
{
    // The adapter's name behind the first blank is for the reader; a port typed by hand stands alone.
    return m_form->communicationInterface->currentText().trimmed().section(QLatin1Char(' '), 0, 0);
}

void MW::on_connect_button_clicked()
{
    if (!m_form->connect_button->isEnabled())
        return;
    qDebug() << "attempt connecting";
    statusBar()->clearMessage(); // what an earlier attempt said is not about this one
    stopStimulus();
    m_connection.command(Connection::TaskDisconnect);
    m_connection.getListOfBusNodes(chosenPort());
    m_form->connect_button->setText(tr("Searching devices..."));
}

void MW::on_disconnect_button_clicked()
{
    if (!m_form->disconnect_button->isEnabled())
        return;
    if (checkIfParamsChangedAndAskUser(AskWithAbort) || checkIfParamsSavedAndAskUser())
        return;
    stopStimulus();
    m_connection.command(Connection::TaskDisconnect);
}

void MW::availableBusNodesListReceived(QList<NodeType> list)
{
    m_form->connect_button->setText(tr("Connect to drive"));
    m_reconnectAfterUpgrade = false;
    // Two quick presses bring two answers: only the newest one is worth choosing from.
    m_foundNodes = list;
    if (m_nodeDialog)
        m_nodeDialog->reject();
    if (!m_nodeQuestionWaits) {
        m_nodeQuestionWaits = true;
        askWhenFree([this] { chooseNode(); }, Asked::ByUser);
    }
}

void MW::chooseNode()
{
    m_nodeQuestionWaits = false;
    const int last = m_lastPort == chosenPort() ? m_lastAddress : 0;
    NodeDialog dialog(m_foundNodes, last);
    dialog.setWindowIcon(windowIcon());
    m_nodeDialog = &dialog;
    const int choice = dialog.exec();
    m_nodeDialog = nullptr;
    if (choice == NodeDialog::SearchAgain)
        on_connect_button_clicked();
    else if (choice == NodeDialog::Open && dialog.chosenAddress() != 0)
        connectToNode(dialog.chosenAddress());
}

void MW::connectToNode(int address)
{
    FWUpgrade_close_clicked();
    m_lastPort = chosenPort();
    m_lastAddress = address;
    m_connection.connectDevice(m_lastPort, address);
    m_connection.getParams();
    areParamsChanged();
    m_settings.settle();
    m_connection.checkErrors();
    updateUnitLabels();
}

void MW::connectionStatusChanged(bool connected, QString text)
{
    m_connectionStatusLabel->setText(text);
    m_settings.connectionChanged();
    m_enableState = EnableState::Unknown;
    m_disconnectWhenDisabled = false;

    // Not to "Disconnect from drive", where the keyboard would go when the controls that it was in are disabled.
    if (connected && m_form->groupBox->isAncestorOf(QApplication::focusWidget()))
        m_form->pageSelector->setFocus();
    enableDriveControls(connected);
    updateSaveToFileButton();
    // A search that could not open the port has no answer of its own.
    if (!connected && text == Connection::tr("Connect failed"))
        m_form->connect_button->setText(tr("Connect to drive"));

    m_form->restartToDFUMode->setVisible(m_connection.deviceHasCapability(Connection::CapRestartToDFU));
    m_form->measureRLbutton->setVisible(m_connection.deviceHasCapability(Connection::CapMeasureRL));
    m_firmwareDialog->form.resetToFactoryState->setVisible(
        m_connection.deviceHasCapability(Connection::CapResetToFactory));

    if (connected) {
        statusBar()->clearMessage(); // what was wrong before is over
        showMaximumSampleRate();
    } else {
        showNoDevice();
        m_disableWatch->connectionLost();
    }
    updateUnitLabels();
    updateAllRules();
}

void MW::enableDriveControls(bool connected)
{
    // Disabling also works without a connection once it is known which drive to tell.
    m_form->driveControlsGroup->setEnabled(connected || m_lastAddress != 0);
    QWidget *const needDrive[] = {m_form->disconnect_button, m_form->clear_faults, m_form->clear_faults_2,
                                  m_form->restartDrive};
    for (QWidget *widget : needDrive)
        widget->setEnabled(connected);
    m_form->connect_button->setEnabled(!connected);
    m_form->communicationInterface->setEnabled(!connected);
    m_form->refreshPorts->setEnabled(!connected);

    // What a bootloader has no use for. Disabling is not among it: that always gets through, and says what it did.
    struct Control
    {
        QWidget *widget;
        bool needsDrive; ///< the others work without one
    };
    const Control needFirmware[] = {
        {m_form->apply_button, true},     {m_form->start_homing, true},  {m_form->abort_homing, true},
        {m_form->ScopeCaptureNow, true},  {m_form->setAbs1, true},       {m_form->setAbs2, true},
        {m_form->setInc1, true},          {m_form->setInc2, true},       {m_form->measureRLbutton, true},
        {m_form->enable_drive, true},     {m_form->force_enable, true},  {m_form->saveToFlash, true},
        {m_form->stimulusEnabled, false}, {m_form->setZero, false},      {m_form->restartToDFUMode, true},
    };
    const bool upgradeMode = connected && m_connection.isInFirmwareUpgradeMode();
    const char *const usual = "usualToolTip";
    for (const Control &control : needFirmware) {
        QWidget *widget = control.widget;
        widget->setEnabled(!upgradeMode && (connected || !control.needsDrive));
        if (!widget->property(usual).isValid())
            widget->setProperty(usual, widget->toolTip());
        widget->setToolTip(upgradeMode ? tr("Not while the drive is in firmware upgrade mode")
                                       : widget->property(usual).toString());
    }
}

void MW::updateSaveToFileButton()
{
    // Without a drive there is nothing to wait for; with one, a file must not pass for its settings before they came.
    const bool complete = !m_connection.isConnected() || m_settings.driveWasRead();
    m_form->save_settings_to_file->setEnabled(complete);
}

bool MW::driveRunsItsFirmware() const
{
    return m_connection.isConnected() && !m_connection.isInFirmwareUpgradeMode();
}

void MW::showMaximumSampleRate()
{
    const double rate = m_connection.maxScopeSampleRate();
    qDebug() << "max rate" << rate;
    // The first item stands for "as fast as the drive can".
    m_form->ScopeSampleRate->setItemText(0, tr("%1 Hz").arg(QString::number(rate)));
}

void MW::showNoDevice()
{
    for (QLabel *label :
         {m_form->HWMODEL, m_form->HWVER, m_form->HWSERIAL, m_form->TCFWVER, m_form->FWVER, m_form->BUILDREVISION})
        label->clear();
    m_statePanels->connectionEnded();
    if (!m_lastSetpoint.isEmpty())
        m_form->setpointNow->setText(tr("Setpoint last known: %1").arg(m_lastSetpoint));
    // Whatever ended the connection, the next drive must not start moving because of a tick that was left behind.
    if (m_form->stimulusEnabled->isChecked())
        stopStimulus();
}

QString MW::giveDeviceVersion(int hwtypeid)
{
    return QString::number(hwtypeid / 10 * 10); // the last digit is a revision that is not shown
}
