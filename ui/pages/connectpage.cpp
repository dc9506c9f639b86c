#include "connectpage.h"

#include "portlist.h"
#include "reach.h"
#include "ui_connectpage.h"

#include <QApplication>
#include <QDebug>
#include <utility>

ConnectPage::ConnectPage(QWidget *window, const Ui_ConnectPage &form, Connection &session, QuestionQueue *questions)
    : QObject(window), m_form(form), m_session(session),
      m_chooser(window, questions, [this] { return m_lastPort == chosenPort() ? m_lastAddress : 0; })
{
    // No completion: a typed "/dev/ttyS1" must not turn into the listed "/dev/ttyS10", which is another machine.
    m_form.communicationInterface->setCompleter(nullptr);
    connect(m_form.refreshPorts, &QPushButton::clicked, this, &ConnectPage::refreshPorts);
    connect(&m_chooser, &NodeChooser::chosen, this, &ConnectPage::connectTo);
    connect(&m_chooser, &NodeChooser::searchAgain, this, &ConnectPage::search);
}

// --- Ports --------------------------------------------------------------------------------------------------------

void ConnectPage::listPorts(const Ports &chosen, const QList<SerialPort> &ports)
{
    m_ports = chosen;
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
    PortList list = portListOf(ports);
    if (!m_ports.virtualDrive.isEmpty())
        addVirtualDrive(list, m_ports.virtualDrive);
    if (!m_ports.chosen.isEmpty())
        preselectPort(list, m_ports.chosen);
    m_form.communicationInterface->clear();
    m_form.communicationInterface->addItems(list.items);
    m_form.communicationInterface->setCurrentIndex(list.current);
}

void ConnectPage::refreshPorts()
{
    const QString before = m_form.communicationInterface->currentText();
    listPorts(Ports(m_ports), serialPortsOfThisMachine());
    if (!before.trimmed().isEmpty())
        m_form.communicationInterface->setCurrentText(before);
}

QString ConnectPage::chosenPort() const
{
    // The adapter's name behind the first blank is for the reader; a port typed by hand stands alone.
    return m_form.communicationInterface->currentText().trimmed().section(QLatin1Char(' '), 0, 0);
}

// --- Search and connect -------------------------------------------------------------------------------------------

void ConnectPage::search()
{
    if (!m_form.connect_button->isEnabled())
        return;
    qDebug() << "attempt connecting";
    m_returnTo = 0; // whoever searches wants to choose
    emit searching();
    emit leaving();
    m_session.command(Connection::TaskDisconnect);
    m_session.getListOfBusNodes(chosenPort());
    m_form.connect_button->setText(tr("Searching devices..."));
}

void ConnectPage::searchForLast()
{
    search();
    m_returnTo = m_lastAddress;
}

void ConnectPage::searchAfterUpgrade()
{
    m_session.command(Connection::TaskScanBus);
    m_form.connect_button->setText(tr("Searching devices..."));
}

void ConnectPage::nodesFound(const QList<NodeType> &nodes)
{
    m_form.connect_button->setText(tr("Connect to drive"));
    const int returnTo = std::exchange(m_returnTo, 0);
    for (const NodeType &node : nodes) {
        if (node.address == returnTo && !node.firmwareUpgradeMode && !node.unreadable)
            return connectTo(returnTo);
    }
    m_chooser.offer(nodes);
}

void ConnectPage::messageCame(const Message &message)
{
    if (message.kind == MessageKind::ConnectFailed)
        m_form.connect_button->setText(tr("Connect to drive"));
}

void ConnectPage::connectTo(int address)
{
    emit connecting(address);
    m_lastPort = chosenPort();
    m_lastAddress = address;
    m_session.connectDevice(m_lastPort, address);
    m_session.getParams();
    m_session.checkErrors();
}

bool ConnectPage::canDisconnect() const
{
    return m_form.disconnect_button->isEnabled();
}

void ConnectPage::disconnectDrive()
{
    emit leaving();
    m_session.command(Connection::TaskDisconnect);
}

// --- What is shown ------------------------------------------------------------------------------------------------

bool ConnectPage::holdsKeyboard() const
{
    return m_form.groupBox->isAncestorOf(QApplication::focusWidget());
}

void ConnectPage::showConnection(Reach reach)
{
    const bool connected = reach != Reach::NoDrive;
    // Disabling also works without a connection once it is known which drive to tell.
    m_form.driveControlsGroup->setEnabled(connected || m_lastAddress != 0);
    for (QWidget *widget : {m_form.disconnect_button, m_form.clear_faults, m_form.restartDrive})
        widget->setEnabled(connected);
    for (QWidget *widget :
         {static_cast<QWidget *>(m_form.connect_button), static_cast<QWidget *>(m_form.communicationInterface),
          static_cast<QWidget *>(m_form.refreshPorts)})
        widget->setEnabled(!connected);
    for (QWidget *button : {m_form.enable_drive, m_form.force_enable, m_form.saveToFlash, m_form.restartToDFUMode})
        enableByReach(button, reach);
    m_form.restartToDFUMode->setVisible(m_session.deviceHasCapability(Connection::CapRestartToDFU));
    if (!connected)
        clearIdentity();
}

void ConnectPage::showBootloader(int version)
{
    if (version > 0)
        m_form.FWVER->setText(tr("%1 (bootloader)").arg(version));
    for (QLabel *label : {m_form.TCFWVER, m_form.BUILDREVISION})
        label->setText(tr("Not known in firmware upgrade mode"));
}

void ConnectPage::clearIdentity()
{
    for (QLabel *label :
         {m_form.HWMODEL, m_form.HWVER, m_form.HWSERIAL, m_form.TCFWVER, m_form.FWVER, m_form.BUILDREVISION})
        label->clear();
}

bool ConnectPage::canClearFaults() const
{
    return m_form.clear_faults->isEnabled();
}
