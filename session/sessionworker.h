/// \file
/// The worker's side of a session: performs the queued tasks on the bus. Lives on Connection's thread.
#ifndef SESSIONWORKER_H
#define SESSIONWORKER_H

#include "busline.h"
#include "drivestate.h"
#include "sessiondata.h"
#include "versioncheck.h"

#include <functional>
#include <initializer_list>
#include <optional>

/// One source file a topic: sessionworker.cpp (loop, pauses), errors.cpp, stops.cpp, connecting.cpp,
/// identification.cpp, transfer.cpp, statuspoll.cpp, scope.cpp, stimulus.cpp, flashing.cpp, drivecommands.cpp,
/// settingsfiles.cpp. A new task is a row in the table of sessionworker.cpp. Signals are Connection's, emitted from
/// here.
class SessionWorker
{
public:
    SessionWorker(Connection &session, SessionData &data, TaskQueue &queue);

    /// Performs tasks until the quit task.
    void run();

private:
    enum class Reply { Done, Refused, None }; ///< to a write
    using Handler = void (SessionWorker::*)(const TaskRequest &);
    struct TaskRule;
    static const TaskRule *ruleOf(int task);

    // --- Loop and what every task may use (sessionworker.cpp) ---
    void perform(const QueuedTask &entry);
    void finishTask();
    void connectionUpdate();
    enum class Drive { Answers, Restarts };
    static constexpr int restartPauseMs = 3500;
    /// Every pause of the worker. False when the session is closing, which cuts it short; serves a disable at once.
    bool pause(int milliseconds, Drive drive = Drive::Answers);
    void debug() const;
    void quit(const TaskRequest &);
    void doNothing(const TaskRequest &) {}
    bool isConnected() const { return m_data.connected; }
    bool inFirmwareUpgradeMode() const { return m_data.firmwareUpgradeMode; }

    // --- Errors, and asking a second time (errors.cpp) ---
    /// For pure reads, and writes that say the same twice: asks once more, silently, when no good reply came. `ask`
    /// makes one exchange and returns whether it was good.
    bool askAgain(const std::function<bool()> &ask);
    bool letLateRepliesPass();
    /// Every text for the user, from where it arises.
    void tell(MessageKind kind, const QString &text);
    void checkZBErrors();
    /// Text for what has accumulated, empty when nothing did; ends the connection and clears what it words.
    QString stringifyZBBusErrors(const SingleParam *param = nullptr);
    void reportErrors(const SingleParam *param = nullptr);
    /// After a write, when it was refused or the error latch is set. True when it was refused, which has been told.
    bool reportWrite(const SingleParam &param, Reply reply = Reply::Done);
    void tellRefusal(const SingleParam *param);
    void tellLostLine(const QString &text);
    bool statusIsClean() const; ///< no failure since the last report
    void checkErrors(const TaskRequest &);
    void dropOldErrorBits();

    // --- Stops (stops.cpp) ---
    bool serveWaitingDisable(); ///< between two exchanges of a long task; true when one was sent
    void disableRestartingDrive(std::chrono::steady_clock::time_point deadline);
    bool sendStop(int address, long value); ///< until the drive acknowledges it
    void disableDrive();
    void announceDisable(bool acknowledged);
    void announceDisableOutcome(DisableOutcome outcome);
    void lookForDisable(); ///< in what was just polled
    bool writeBothDisables();
    DisableOutcome disableAndReadBack();
    DisableOutcome readBackEnable();
    void undoEnable();
    void disableWithoutConnection();
    void stopWhatWasLeft(); ///< behind the end of a connection

    // --- Connecting (connecting.cpp) ---
    void connectDrive(const TaskRequest &request);
    void disconnectDrive(const TaskRequest &);
    void scanBus(const TaskRequest &request);
    enum class Heard { Nothing, Noise, Reply };
    Heard askWho(int address, NodeType &node);
    QList<NodeType> searchDrives(int &noisyExchanges);
    bool openLine(const QString &portName, int timeoutMs);
    void rememberTarget(const TaskRequest &request);
    void resetDriveState();
    void refuse(MessageKind kind, const QString &statusText, const QString &errorText);
    void announceFirmwareUpgradeMode();

    // --- Identification (identification.cpp) ---
    bool identify(int nodeAddress);
    bool readIdentity(int nodeAddress, DriveIdentity &drive);
    bool readSameIdentityTwice(int nodeAddress, DriveIdentity &drive);
    bool judge(const DriveIdentity &drive);
    void refuseLine(int nodeAddress);
    void setDeviceSpecificVariables(int typeId);
    bool isParamAvailableInCurrentDevice(const SingleParam &param) const;

    // --- Parameter transfer (transfer.cpp) ---
    ZbStatus readRegisters(std::initializer_list<int> addresses, std::initializer_list<long *> values);
    ZbStatus readParameters(int address1, long &value1);
    ZbStatus readParameters(int address1, long &value1, int address2, long &value2);
    ZbStatus readParameters(int address1, long &value1, int address2, long &value2, int address3, long &value3);
    ZbStatus requestParamStruct(const SingleParam &param);
    bool fillParamStruct(SingleParam &param);
    bool readRecord(SingleParam &param);
    bool readRecords(Parameters &list);
    bool refuseCommand(const QString &name, int address);
    bool refuseValue(const SingleParam &param, double deviceValue);
    SingleParam withDriveLimits(SingleParam param) const;
    void writeRecord(const SingleParam &param);
    void writeRecords(const Parameters &list);
    void noteWrite(const QString &name, Reply reply);
    void noteHeld(const SingleParam &param);
    bool setParameter(int address, long value);
    Reply write(int address, long value);
    /// The same for what may be said twice: settings, never a command.
    Reply writeSetting(int address, long value);
    Reply writeAndLook(int address, long value);
    bool writeAndFetch(int address, long value) { return write(address, value) != Reply::None; }
    /// A write that acts: once only, and a refusal is told at once in these words.
    Reply writeCommand(int address, long value, const QString &refusal);
    void setOverriddenParam(const Parameters &list, unsigned slot);
    void getParams(const TaskRequest &);
    void setParams(const TaskRequest &request);

    // --- Status poll (statuspoll.cpp) ---
    void updateStatus(const TaskRequest &);
    bool poll(); ///< one poll and what it tells; false when no good reply came
    bool askPoll(const StatusPoll &plan, DriveState &state);
    void announcePoll();
    void announcePanels();

    // --- Commands that are a write or two (drivecommands.cpp) ---
    void clearFaults(const TaskRequest &);
    void applyEnableState(const TaskRequest &request);
    void saveToFlash(const TaskRequest &);
    void startHoming(const TaskRequest &);
    void abortHoming(const TaskRequest &);
    void stopStimulus(const TaskRequest &);
    void setAbsoluteSetpoint(const TaskRequest &request);
    void setIncrementalSetpoint(const TaskRequest &request);
    void setZero(const TaskRequest &);
    void forgetStimulus(); ///< when a drive restarts, which forgets its buffer and what was selected for it
    void restartDrive(const TaskRequest &);
    void restartToDFU(const TaskRequest &);
    bool sendRestartToDFU();
    void measure(const TaskRequest &);

    // --- Scope (scope.cpp) ---
    void announceCapture(CaptureState state);
    void startCapture(const TaskRequest &request);
    void downloadCapture(const TaskRequest &);
    void initScope();
    bool selectScopeMemory();
    bool downloadScope(int words);
    bool downloadScopeWords(int first, int count);
    bool askScopeWords(int first, int count, QList<qint16> &words);

    // --- Test stimulus (stimulus.cpp) ---
    void streamStimulus(const TaskRequest &);
    bool readBufferFree(bool first, long &free);
    bool stimulusActive() const;
    void uploadStreamChunk();
    QueueItem nextStreamItem();

    // --- Firmware upgrade (flashing.cpp) ---
    void flashFirmware(const TaskRequest &request);
    bool flash(const TaskRequest &request);
    bool hasIOSide() const;
    void flashProgress(const QString &text);
    bool flashFailed(const QString &text);
    bool flashStepIsClean();
    void sendFlashCommand(int command);
    bool flashCommand(int command);
    bool startFirmware();
    bool flashFirmwareIOSide(const QList<quint16> &image, bool resetToFactory);
    bool verifyIOSide();
    bool flashFirmwareTCSide(const QList<quint16> &image);
    static int wordsToUpload(const QList<quint16> &image);
    bool uploadImage(const QList<quint16> &image, bool programChunks);
    bool uploadChunk(const QList<quint16> &image, int first, bool program);

    // --- Settings files (settingsfiles.cpp) ---
    void saveSettingsFile(const TaskRequest &request);
    void loadSettingsFile(const TaskRequest &request);

    Connection &m_session;
    SessionData &m_data;
    TaskQueue &m_queue;
    BusLine m_line;

    bool m_quit = false;
    bool m_asksAgain = false;             ///< not in a search, where silence is an answer
    bool m_errorLatch = false;            ///< set by every error text: from then on each write is checked
    bool m_communicationReported = false; ///< since connecting: one text about the line is enough
    quint32 m_deviceErrors = 0;           ///< register 13 as last queried
    bool m_errorsAreOld = false;          ///< until the connect task ends: see checkZBErrors

    std::optional<std::chrono::steady_clock::time_point> m_disableSent; ///< until its outcome was announced
    bool m_stopIsUnconfirmed = false;                                   ///< in this connection
    bool m_mayBeEnabled = false;                                        ///< as far as polls and commands tell
    bool m_enableIsToBeUndone = false; ///< by a new opening of the port, since the old one gave no answer
    bool m_streamWasLost = false;      ///< a connection ended without the stop of its stream being acknowledged
    QString m_lastWritten;             ///< name of the record that the running write has surely brought to the drive
    bool m_outcomeIsKnown = false;     ///< of the last write that was answered
    QString m_brokenOffWrite;          ///< what to say about the running write when its connection ends

    int m_firmwareVersion = 0; ///< the bootloader's in firmware-upgrade mode
    int m_coreVersion = 0;
    int m_controlMode = 0; ///< CM as last read or written

    DriveState m_state; ///< of the last good poll; its sequence number goes on over all connections

    /// What has been said about the polls of this connection.
    struct Announced
    {
        bool permanentStop = false;
        std::optional<qint32> setpoint;
    } m_announced;

    struct CaptureRun
    {
        CaptureRequest request;    ///< as armed
        double samplePeriod = 0.0; ///< s
        bool pending = false;      ///< armed and not read yet
    } m_capture;

    struct Stream
    {
        bool started = false; ///< set-up items and the first setpoint were sent in this connection
        bool running = false; ///< setpoints were sent since the stream was last stopped
        int step = 0;         ///< items sent since the stream started
        int initialFree = 0;  ///< bytes free in the drive's buffer then
    } m_stream;

    int m_uploadedWords = 0; ///< of the images of an upgrade, for its progress
    int m_uploadWords = 0;
};

#endif
