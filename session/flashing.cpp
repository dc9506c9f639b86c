// Firmware upgrade of a drive that runs its bootloader. No disable is served in here: a bootloader has no enable
// register, and nothing turns.
#include "firmwarefile.h"
#include "sessionregisters.h"
#include "sessionworker.h"

namespace {

constexpr int chunkWords = 32;
constexpr int progressWords = 1024; // one line of progress each
constexpr quint16 fillerWord = 0xEEEE;
constexpr long outcomeRefused = 2; // return value of an item, with the length control at 3
constexpr quint32 commandFailed = 1;

constexpr int erasePauseMs = 2000;
constexpr int programCorePauseMs = 22000;
constexpr int startPauseMs = 1500;

constexpr int firstThatVerifies = 1210; // bootloader versions
constexpr int firstThatProtects = 1260;

} // namespace

void SessionWorker::flashFirmware(const TaskRequest &request)
{
    // A query for errors between the length control and the upload would break the replies to the upload.
    m_errorLatch = false;
    if (!flash(request)) {
        m_line.clearStatus();
        m_deviceErrors = 0;
    }
    // The failures have been told in the log of the upgrade.
    m_errorLatch = false;
}

bool SessionWorker::flash(const TaskRequest &request)
{
    const bool twoProcessors = hasIOSide();
    if (!isConnected() || !inFirmwareUpgradeMode())
        return flashFailed(
            Connection::tr("Error: %1").arg(Connection::tr("No device in firmware upgrade mode is connected")));
    FirmwareFile file;
    const QString message = file.loadFile(request.firmwareFileName, m_data.deviceType);
    if (!message.isEmpty())
        return flashFailed(Connection::tr("Error: %1").arg(message));
    // Erasing for a file that has nothing to write would leave the drive without a firmware.
    if (file.ioImage.isEmpty())
        return flashFailed(Connection::tr("Error: %1").arg(Connection::tr("The file does not contain a firmware")));
    flashProgress(Connection::tr("%1 firmware file loaded successfully").arg(request.firmwareFileName.toHtmlEscaped()));

    m_uploadedWords = 0;
    m_uploadWords = wordsToUpload(file.ioImage) + (twoProcessors ? wordsToUpload(file.tcImage) : 0);
    if (!flashFirmwareIOSide(file.ioImage, request.resetToFactory)) {
        return flashFailed(
            twoProcessors
                ? Connection::tr("Flashing I/O CPU firmware failed. Power off, reconnect and try again. Ensure that "
                                 "firmware file is compatible with your device.")
                : Connection::tr("Flashing firmware failed. Power off, reconnect and try again. Ensure that firmware "
                                 "file is compatible with your device."));
    }
    if (!flashFirmwareTCSide(file.tcImage)) {
        return flashFailed(Connection::tr("Flashing TarnwellCore firmware failed. Power off, reconnect and try again. "
                                          "Ensure that firmware file is compatible with your device."));
    }
    // Sent before anything is said: a drive that refuses the start stays without its firmware.
    if (!startFirmware()) {
        return flashFailed(Connection::tr("The new firmware was written, but the drive has not confirmed that it starts "
                                          "it. Power off, reconnect and try again if it does not run."));
    }
    emit m_session.firmwareUpgradeMsg(
        Connection::tr(
            "<b>All done with success!</b> Drive has been started with one-time bus address of 16 and you may "
            "connect to it now via Connect button. To return using normal device address, power off, change "
            "device address and power up again."),
        true, false);
    // Nobody answers here any more: this connection is over.
    m_queue.pushDisconnectFirst();
    pause(startPauseMs);
    return true;
}

bool SessionWorker::hasIOSide() const
{
    return modelHasCapability(m_data.deviceType, DeviceCapability::IOSideFirmware);
}

void SessionWorker::flashProgress(const QString &text)
{
    emit m_session.firmwareUpgradeMsg(text, false, false);
}

bool SessionWorker::flashFailed(const QString &text)
{
    emit m_session.firmwareUpgradeMsg(text, true, true);
    return false;
}

/// Whether nothing has gone wrong since the last report; otherwise it has been told.
bool SessionWorker::flashStepIsClean()
{
    const QString text = stringifyZBBusErrors();
    if (!text.isEmpty())
        flashProgress(Connection::tr("Errors occurred: %1").arg(text));
    return text.isEmpty() && !m_queue.isClosing();
}

/// One command of the upgrade. What went wrong with it is left to flashStepIsClean, which tells it in the log.
void SessionWorker::sendFlashCommand(int command)
{
    if (write(reg::FlashCommand, command) == Reply::Refused)
        m_deviceErrors |= commandFailed;
}

/// The same with the question how it went: a refusal may show in the error bits only.
bool SessionWorker::flashCommand(int command)
{
    sendFlashCommand(command);
    const quint32 refused = m_deviceErrors;
    checkZBErrors();
    m_deviceErrors |= refused;
    return flashStepIsClean();
}

/// Nobody can be asked behind a start, so the answer to the command itself has to tell.
bool SessionWorker::startFirmware()
{
    writeSetting(reg::ReturnLength, reg::ReturnsOutcome);
    if (!flashStepIsClean())
        return false;
    sendFlashCommand(reg::FlashStartFirmware);
    return flashStepIsClean();
}

bool SessionWorker::flashFirmwareIOSide(const QList<quint16> &image, bool resetToFactory)
{
    const bool twoProcessors = hasIOSide();
    flashProgress(twoProcessors ? Connection::tr("<b>STEP1: I/O side firmware</b>")
                                : Connection::tr("<b>Uploading firmware</b>"));
    flashProgress(twoProcessors ? Connection::tr("Erasing IO side firmware on device...")
                                : Connection::tr("Erasing existing firmware on device..."));
    // What went wrong before this upgrade would fail it after the erase, and leave the drive without a firmware.
    checkZBErrors();
    m_deviceErrors = 0;
    if (!flashStepIsClean())
        return false;
    const bool resetSettings = resetToFactory && isKetaModel(m_data.deviceType);
    sendFlashCommand(resetSettings ? reg::FlashEraseAndResetSettings : reg::FlashErase);
    pause(erasePauseMs);
    checkZBErrors();
    if (!flashStepIsClean())
        return false;
    flashProgress(twoProcessors ? Connection::tr("Done. Uploading new IO side firmware...")
                                : Connection::tr("Done. Uploading new firmware..."));
    if (!uploadImage(image, true))
        return false;
    flashProgress(Connection::tr("Done!"));
    return m_firmwareVersion < firstThatVerifies || verifyIOSide();
}

bool SessionWorker::verifyIOSide()
{
    if (!flashCommand(reg::FlashVerify))
        return false;
    long faults = 0;
    readParameters(reg::FaultRegister, faults);
    if (!flashStepIsClean())
        return false;
    if (faults & reg::FaultFlashCheckFailed) {
        flashProgress(
            Connection::tr("The installed firmware did not pass device's verification (possible checksum error "
                           "or icompatible FW)! Flashing failed."));
        return false;
    }
    if (m_firmwareVersion >= firstThatProtects) {
        flashProgress(Connection::tr("Write protecting flash."));
        if (!flashCommand(reg::FlashWriteProtect))
            return false;
    }
    flashProgress(hasIOSide() ? Connection::tr("I/O side flash contents verified and passed")
                              : Connection::tr("Device memory contents verified and passed"));
    return true;
}

bool SessionWorker::flashFirmwareTCSide(const QList<quint16> &image)
{
    if (!hasIOSide())
        return true;
    flashProgress(Connection::tr("<b>STEP2: TarnwellCore firmware</b>"));
    if (image.isEmpty()) {
        flashProgress(Connection::tr("The FW file does not contain TarnwellCore firmware, previously installed "
                                     "TarnwellCore FW will remain intact"));
        return true;
    }
    if (!uploadImage(image, false))
        return false;
    flashProgress(Connection::tr("Flashing TarnwellCore firmware (takes about 20 secs)..."));
    sendFlashCommand(reg::FlashProgramCore);
    pause(programCorePauseMs);
    if (m_firmwareVersion >= firstThatVerifies) {
        // The value is deliberately not looked at: bit 7 speaks of the I/O side.
        long ignored = 0;
        readParameters(reg::FaultRegister, ignored);
        if (statusIsClean())
            flashProgress(Connection::tr("TarnwellCore flash contents verified and passed"));
    }
    checkZBErrors();
    if (!flashStepIsClean())
        return false;
    flashProgress(Connection::tr("Done!"));
    return true;
}

int SessionWorker::wordsToUpload(const QList<quint16> &image)
{
    return (image.size() + chunkWords - 1) / chunkWords * chunkWords;
}

bool SessionWorker::uploadImage(const QList<quint16> &image, bool programChunks)
{
    writeSetting(reg::ReturnLength, reg::ReturnsOutcome);
    const int words = wordsToUpload(image);
    for (int first = 0; first < words; first += chunkWords) {
        if (m_queue.isClosing() || !uploadChunk(image, first, programChunks))
            return false;
        m_uploadedWords += chunkWords;
        emit m_session.firmwareUploadProgress(2 * m_uploadedWords, 2 * m_uploadWords);
        const int sent = first + chunkWords;
        if (sent % progressWords == 0)
            flashProgress(Connection::tr("Uploaded bytes: %1").arg(2 * sent));
    }
    flashProgress(Connection::tr("Uploaded bytes: %1").arg(2 * words));
    return true;
}

bool SessionWorker::uploadChunk(const QList<quint16> &image, int first, bool program)
{
    int items = 1 + chunkWords;
    m_line.append({QueueItem::Address, reg::FlashPipe});
    for (int i = first; i < first + chunkWords; ++i)
        m_line.append({QueueItem::Value24, i < image.size() ? image.at(i) : fillerWord});
    if (program) {
        m_line.append({QueueItem::Address, reg::FlashCommand});
        m_line.append({QueueItem::Value24, reg::FlashProgramChunk});
        items += 2;
    }
    m_line.execute();
    for (int i = 0; i < items; ++i) {
        long outcome = 0;
        m_line.fetch(&outcome);
        if (outcome == outcomeRefused)
            m_deviceErrors |= commandFailed;
        if (!flashStepIsClean())
            return false;
    }
    return true;
}
