/// \file
/// A conversation with one drive, one step after the other: the session's questions and signals as calls that wait.
#ifndef DRIVECLIENT_H
#define DRIVECLIENT_H

#include "connection.h"
#include "progress.h"

#include <QEventLoop>
#include <QStringList>
#include <functional>
#include <future>
#include <memory>
#include <optional>

/// The three panels of the drive's live state, as HTML.
struct LiveState
{
    QString inputs;
    QString status;
    QString faults;
};

/// Every step runs the event loop until it is done, and ends within a generous limit whatever the line does. A step
/// that failed (false, or no value) has left its reason in messages(). Main thread only.
class DriveClient : public QObject
{
    Q_OBJECT

public:
    explicit DriveClient(const QString &port);
    ~DriveClient() override;

    /// The drives on the bus. Only before connectTo.
    std::optional<QList<NodeType>> scan();
    /// Connects to the drive at a bus address; one in firmware-upgrade mode counts, see isInUpgradeMode.
    bool connectTo(int address);
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
    std::optional<LiveState> liveState();

    /// Ends the connection and the session. messages() is complete only then.
    void close();
    /// What the session and the steps had to say, as plain text.
    QStringList messages() const { return m_messages; }

public slots:
    /// Ends the step that is waiting, and fails all that follow; what has been handed to the drive is finished.
    void interrupt();

private:
    void watchConnection();
    void say(const QString &text);
    bool waitFor(const QString &what, const std::function<bool()> &done, int limitMs);
    /// Reads all settings, behind whatever has been queued before.
    std::optional<Parameters> readBack(const QString &what);

    enum class Link { None, Up, Lost };

    QString m_port;
    int m_address = 0;
    Progress m_progress;
    QEventLoop m_loop;
    std::function<bool()> m_done; ///< condition of the step that waits
    bool m_interrupted = false;
    QStringList m_messages;

    // What the signals have brought.
    Link m_link = Link::None;
    std::optional<QList<NodeType>> m_nodes;
    std::optional<Parameters> m_list;
    int m_polls = 0; ///< status polls since the last list
    LiveState m_live;

    std::promise<void> m_ended;               ///< the worker's last word
    std::unique_ptr<Connection> m_connection; ///< last: its thread must end before the rest goes
};

#endif
