/// \file
/// A conversation with one drive, one step after the other: the session's questions and signals as calls that wait.
#ifndef VELBRIN_CLI_DRIVECLIENT_H
#define VELBRIN_CLI_DRIVECLIENT_H

#include "connection.h"
#include "interruption.h"
#include "progress.h"

#include <QEventLoop>
#include <QStringList>
#include <functional>
#include <future>
#include <memory>
#include <optional>

/// What the session's signals have brought. A step forgets what it is going to wait for, then asks for it.
struct Received
{
    enum class Link { None, Up, Lost };
    Link link = Link::None;
    std::optional<QList<NodeType>> nodes;
    std::optional<Parameters> list;
    DriveState live;
    int polls = 0;                                ///< of the live state
    int errors = 0;                               ///< messages that something went wrong
    bool notes = true;                            ///< whether what the session merely remarks is worth a message
    std::optional<DisableOutcome> disableOutcome; ///< how a disable, or an enable that was taken back, ended
    CaptureState captureState = CaptureState::Idle;
    std::optional<QList<CaptureData>> plot;
    std::function<void(const QString &html, bool done, bool failed)> upgradeMessage; ///< called when one arrives
    std::function<void(int sentBytes, int totalBytes)> uploadProgress;
};

/// Every step runs the event loop until it is done, and ends within a generous limit whatever the line does. A step
/// that failed (false, or no value) has left its reason in messages(). Main thread only.
class DriveClient : public QObject
{
    Q_OBJECT

public:
    /// `pauseScale`: see Connection::setPauseScale.
    explicit DriveClient(const QString &port, double pauseScale = 1.0);
    ~DriveClient() override;

    /// The drives on the bus. Only while none is connected.
    std::optional<QList<NodeType>> scan();
    /// Connects to the drive at a bus address; one in firmware-upgrade mode counts, see isInUpgradeMode.
    bool connectTo(int address) { return connectTo(address, Until::Interrupted); }
    /// Behind everything that was asked before.
    bool disconnectDrive();
    bool isUp() const { return m_received.link == Received::Link::Up; }
    bool isLost() const { return m_received.link == Received::Link::Lost; }
    bool isInUpgradeMode() const;
    /// Type id of the connected drive.
    int deviceType() const;
    int address() const { return m_address; }
    QString port() const { return m_port; }

    /// All settings, with the drive's limits.
    std::optional<Parameters> read();
    /// Writes all writable settings of `list` to the drive's working memory and returns what it holds then.
    std::optional<Parameters> write(const Parameters &list);
    /// Saves the working memory to the drive's flash.
    bool saveToFlash();

    /// Asks for the live state and waits for it.
    std::optional<DriveState> liveState();
    /// Waits for the next live state, which comes three times a second.
    std::optional<DriveState> nextLiveState();
    /// The state that came last.
    const DriveState &drive() const { return m_received.live; }
    /// Asks for the live state, then looks at every state that comes, until one shows what is waited for.
    bool waitForDrive(const QString &what, const std::function<bool(const DriveState &)> &shown, int limitMs);

    // --- What steps are made of: see drivemotion.h, capturecommand.cpp, firmwarecommands.cpp ----------------------

    Connection &session() { return *m_connection; }
    Received &received() { return m_received; }
    Progress &progress() { return m_progress; }
    enum class Until { Interrupted, Done }; ///< whether being interrupted ends the wait; a stop has to be seen through
    bool connectTo(int address, Until until);
    /// Waits until `done`, which is looked at whenever a signal has come. Returns it.
    bool waitFor(const QString &what, const std::function<bool()> &done, int limitMs, Until until = Until::Interrupted);
    void say(const QString &text);
    /// Those so far: what went wrong has been mended.
    void forgetMessages() { m_messages.clear(); }

    /// From here until close() has returned no signal ends the program by force: what was set going has to be stopped,
    /// and what is being written finished.
    void beCareful();

    /// Ends the connection and the session, once. messages() is complete only then.
    void close();
    /// What the session and the steps had to say, as plain text.
    QStringList messages() const { return m_messages; }

    // --- Ctrl+C -----------------------------------------------------------------------------------------------------

    enum class OnInterrupt {
        Fail,        ///< the step that waits and all that follow fail; what has been handed to the drive is finished
        EndQuietly,  ///< the same, but it is how the command is meant to end
        AskOnceMore, ///< only `warning` is shown; the second time the work itself is broken off
    };
    void setOnInterrupt(OnInterrupt what, const QString &warning = QString());
    bool wasInterrupted() const { return m_interrupted; }

public slots:
    void interrupt();

private:
    void watchDrive();
    void watchUpgrade();
    void watchMessages();
    /// Stores what a signal of the session brings, then looks whether the step that waits is done.
    template <typename Signal, typename Store> void on(Signal signal, Store store);
    /// Reads all settings, behind whatever has been queued before.
    std::optional<Parameters> readBack(const QString &what);
    bool waitForSession(const QString &what, const std::function<bool()> &answered, int limitMs,
                        Until until = Until::Interrupted);

    QString m_port;
    int m_address = 0;
    Progress m_progress;
    QEventLoop m_loop;
    std::function<bool()> m_done; ///< condition of the step that waits
    OnInterrupt m_onInterrupt = OnInterrupt::Fail;
    QString m_warning;
    bool m_interrupted = false;
    bool m_closed = false;
    std::optional<NoForce> m_noForce;
    QStringList m_messages;
    Received m_received;

    std::promise<void> m_ended;               ///< the worker's last word
    std::unique_ptr<Connection> m_connection; ///< last: its thread must end before the rest goes
};

#endif
