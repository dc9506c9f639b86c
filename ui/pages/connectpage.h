/// \file
/// The Connect page: choosing a port, searching the bus, connecting, and what the page shows of the drive.
#ifndef VELBRIN_UI_CONNECTPAGE_H
#define VELBRIN_UI_CONNECTPAGE_H

#include "message.h"
#include "nodechooser.h"

class Ui_ConnectPage;
struct SerialPort;
enum class Reach;

/// Of the session it asks for searches and connections and ends them. User-interface thread.
class ConnectPage : public QObject
{
    Q_OBJECT

public:
    /// Ports that the list begins with.
    struct Ports
    {
        QString chosen;       ///< chosen at first; empty: the last recognised adapter
        QString virtualDrive; ///< of the built-in virtual drive, empty when there is none
    };
    ConnectPage(QWidget *window, const Ui_ConnectPage &form, Connection &session, QuestionQueue *questions);

    /// Lists the machine's ports, serialPortsOfThisMachine().
    void listPorts(const Ports &chosen, const QList<SerialPort> &ports);
    /// Lists them again; what was chosen or typed stays.
    void refreshPorts();

    /// The Connect button: ends a connection and searches the bus of the chosen port.
    void search();
    /// The same behind a restart: a drive that answers at the former address is connected again without a question.
    void searchForLast();
    /// The same without a click, for the drive that has just got new firmware: it is at another address now.
    void searchAfterUpgrade();
    void nodesFound(const QList<NodeType> &nodes);
    bool canDisconnect() const;
    void disconnectDrive();

    void showConnection(Reach reach);
    /// The port could not be opened, or the bus is never quiet: a search has no answer of its own then.
    void messageCame(const Message &message);
    void showBootloader(int version);
    void clearIdentity();
    /// Whether a control that greys with a new connection has the keyboard.
    bool holdsKeyboard() const;

    /// Of the drive that was connected last, 0 before the first.
    int lastAddress() const { return m_lastAddress; }
    bool canClearFaults() const;

signals:
    void searching();
    /// The connection is about to end by the user's will; everything that moves the drive has to stop.
    void leaving();
    /// A drive was chosen and is about to be connected.
    void connecting(int address);

private:
    void connectTo(int address);
    QString chosenPort() const;

    const Ui_ConnectPage &m_form;
    Connection &m_session;
    NodeChooser m_chooser;
    Ports m_ports;
    QString m_lastPort; ///< of the drive that was connected last, empty before the first
    int m_lastAddress = 0;
    int m_returnTo = 0; ///< address of a drive that was restarted, 0 when none is awaited
};

#endif
