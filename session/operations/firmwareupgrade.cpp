#include "firmwareupgrade.h"

#include "devicemodel.h"
#include "firmwarefile.h"

namespace {

constexpr int chunkWords = 32;
constexpr int progressWords = 1024; // one line of progress each
constexpr quint16 fillerWord = 0xEEEE;
constexpr long outcomeRefused = 2; // return value of an item, with the length control at 3
constexpr quint32 commandFailed = 1;

constexpr Pauses::Milliseconds erasePause(2000);
constexpr Pauses::Milliseconds programCorePause(22000);
constexpr Pauses::Milliseconds startPause(1500);

constexpr int firstThatVerifies = 1210; // bootloader versions
constexpr int firstThatProtects = 1260;

} // namespace

void FirmwareUpgrade::flashFirmware(const FlashRequest &request)
{
    // A query for errors between the length control and the upload would break the replies to the upload.
    m_errors.setLatch(false);
    if (!flash(request)) {
        m_line.clearStatus();
        m_errors.forgetDeviceErrors();
    }
    // The failures have been told in the log of the upgrade.
    m_errors.setLatch(false);
}

bool FirmwareUpgrade::flash(const FlashRequest &request)
{
    if (!m_data.connected || !m_data.firmwareUpgradeMode)
        return flashFailed(
            SessionText::tr("Error: %1").arg(SessionText::tr("No device in firmware upgrade mode is connected")));
    FirmwareFile file;
    const QString message = file.loadFile(request.fileName, m_data.deviceType);
    if (!message.isEmpty())
        return flashFailed(SessionText::tr("Error: %1").arg(message));
    // Erasing for a file that has nothing to write would leave the drive without a firmware.
    if (file.ioImage.isEmpty())
        return flashFailed(SessionText::tr("Error: %1").arg(SessionText::tr("The file does not contain a firmware")));
    flashProgress(SessionText::tr("%1 firmware file loaded successfully").arg(request.fileName.toHtmlEscaped()));

    m_words = {};
    m_words.all = wordsToUpload(file.ioImage) + (hasIOSide() ? wordsToUpload(file.tcImage) : 0);
    if (!flashImages(request, file.ioImage, file.tcImage))
        return false;
    emit m_out.firmwareUpgradeMsg(
        SessionText::tr(
            "<b>All done with success!</b> Drive has been started with one-time bus address of 16 and you may "
            "connect to it now via Connect button. To return using normal device address, power off, change "
            "device address and power up again."),
        true, false);
    // Nobody answers here any more: this connection is over.
    m_queue.pushDisconnectFirst();
    m_pauses.pause(startPause);
    return true;
}

bool FirmwareUpgrade::flashImages(const FlashRequest &request, const QList<quint16> &ioImage,
                                  const QList<quint16> &tcImage)
{
    if (!flashFirmwareIOSide(ioImage, request.resetToFactory)) {
        return flashFailed(
            hasIOSide()
                ? SessionText::tr("Flashing I/O CPU firmware failed. Power off, reconnect and try again. Ensure that "
                                  "firmware file is compatible with your device.")
                : SessionText::tr("Flashing firmware failed. Power off, reconnect and try again. Ensure that firmware "
                                  "file is compatible with your device."));
    }
    if (!flashFirmwareTCSide(tcImage)) {
        return flashFailed(SessionText::tr("Flashing TarnwellCore firmware failed. Power off, reconnect and try again. "
                                           "Ensure that firmware file is compatible with your device."));
    }
    // Sent before anything is said: a drive that refuses the start stays without its firmware.
    if (!startFirmware()) {
        return flashFailed(
            SessionText::tr("The new firmware was written, but the drive has not confirmed that it starts "
                            "it. Power off, reconnect and try again if it does not run."));
    }
    return true;
}

bool FirmwareUpgrade::hasIOSide() const
{
    return modelHasCapability(m_data.deviceType, DeviceCapability::IOSideFirmware);
}

void FirmwareUpgrade::flashProgress(const QString &text)
{
    emit m_out.firmwareUpgradeMsg(text, false, false);
}

bool FirmwareUpgrade::flashFailed(const QString &text)
{
    emit m_out.firmwareUpgradeMsg(text, true, true);
    return false;
}

/// Whether nothing has gone wrong since the last report; otherwise it has been told.
bool FirmwareUpgrade::flashStepIsClean()
{
    const QString text = m_errors.stringifyZBBusErrors();
    if (!text.isEmpty())
        flashProgress(SessionText::tr("Errors occurred: %1").arg(text));
    return text.isEmpty() && !m_pauses.isClosing();
}

/// One command of the upgrade. What went wrong with it is left to flashStepIsClean, which tells it in the log.
void FirmwareUpgrade::sendFlashCommand(int command)
{
    if (m_drive.write(reg::FlashCommand, command) == Reply::Refused)
        m_errors.addDeviceErrors(commandFailed);
}

/// The same with the question how it went: a refusal may show in the error bits only.
bool FirmwareUpgrade::flashCommand(int command)
{
    sendFlashCommand(command);
    const quint32 refused = m_errors.deviceErrors();
    m_errors.checkZBErrors();
    m_errors.addDeviceErrors(refused);
    return flashStepIsClean();
}

/// Nobody can be asked behind a start, so the answer to the command itself has to tell.
bool FirmwareUpgrade::startFirmware()
{
    m_drive.writeSetting(reg::ReturnLength, reg::ReturnsOutcome);
    if (!flashStepIsClean())
        return false;
    sendFlashCommand(reg::FlashStartFirmware);
    return flashStepIsClean();
}

bool FirmwareUpgrade::flashFirmwareIOSide(const QList<quint16> &image, bool resetToFactory)
{
    const bool twoProcessors = hasIOSide();
    flashProgress(twoProcessors ? SessionText::tr("<b>STEP1: I/O side firmware</b>")
                                : SessionText::tr("<b>Uploading firmware</b>"));
    flashProgress(twoProcessors ? SessionText::tr("Erasing IO side firmware on device...")
                                : SessionText::tr("Erasing existing firmware on device..."));
    if (!erase(resetToFactory))
        return false;
    flashProgress(twoProcessors ? SessionText::tr("Done. Uploading new IO side firmware...")
                                : SessionText::tr("Done. Uploading new firmware..."));
    if (!uploadImage(image, Chunks::Programmed))
        return false;
    flashProgress(SessionText::tr("Done!"));
    return m_bootloaderVersion < firstThatVerifies || verifyIOSide();
}

bool FirmwareUpgrade::erase(bool resetToFactory)
{
    // What went wrong before this upgrade would fail it after the erase, and leave the drive without a firmware.
    m_errors.checkZBErrors();
    m_errors.forgetDeviceErrors();
    if (!flashStepIsClean())
        return false;
    const bool resetSettings =
        resetToFactory && modelHasCapability(m_data.deviceType, DeviceCapability::ResetToFactory);
    sendFlashCommand(resetSettings ? reg::FlashEraseAndResetSettings : reg::FlashErase);
    m_pauses.pause(erasePause);
    m_errors.checkZBErrors();
    return flashStepIsClean();
}

bool FirmwareUpgrade::verifyIOSide()
{
    if (!flashCommand(reg::FlashVerify))
        return false;
    long faults = 0;
    m_drive.readParameters(reg::FaultRegister, faults);
    if (!flashStepIsClean())
        return false;
    if (faults & reg::FaultFlashCheckFailed) {
        flashProgress(
            SessionText::tr("The installed firmware did not pass device's verification (possible checksum error "
                            "or icompatible FW)! Flashing failed."));
        return false;
    }
    if (m_bootloaderVersion >= firstThatProtects) {
        flashProgress(SessionText::tr("Write protecting flash."));
        if (!flashCommand(reg::FlashWriteProtect))
            return false;
    }
    flashProgress(hasIOSide() ? SessionText::tr("I/O side flash contents verified and passed")
                              : SessionText::tr("Device memory contents verified and passed"));
    return true;
}

bool FirmwareUpgrade::flashFirmwareTCSide(const QList<quint16> &image)
{
    if (!hasIOSide())
        return true;
    flashProgress(SessionText::tr("<b>STEP2: TarnwellCore firmware</b>"));
    if (image.isEmpty()) {
        flashProgress(SessionText::tr("The FW file does not contain TarnwellCore firmware, previously installed "
                                      "TarnwellCore FW will remain intact"));
        return true;
    }
    if (!uploadImage(image, Chunks::Kept))
        return false;
    flashProgress(SessionText::tr("Flashing TarnwellCore firmware (takes about 20 secs)..."));
    sendFlashCommand(reg::FlashProgramCore);
    m_pauses.pause(programCorePause);
    if (m_bootloaderVersion >= firstThatVerifies) {
        // The value is deliberately not looked at: bit 7 speaks of the I/O side.
        long ignored = 0;
        m_drive.readParameters(reg::FaultRegister, ignored);
        if (m_line.isClean())
            flashProgress(SessionText::tr("TarnwellCore flash contents verified and passed"));
    }
    m_errors.checkZBErrors();
    if (!flashStepIsClean())
        return false;
    flashProgress(SessionText::tr("Done!"));
    return true;
}

int FirmwareUpgrade::wordsToUpload(const QList<quint16> &image)
{
    return (image.size() + chunkWords - 1) / chunkWords * chunkWords;
}

bool FirmwareUpgrade::uploadImage(const QList<quint16> &image, Chunks chunks)
{
    m_drive.writeSetting(reg::ReturnLength, reg::ReturnsOutcome);
    const int words = wordsToUpload(image);
    for (int first = 0; first < words; first += chunkWords) {
        if (m_pauses.isClosing() || !uploadChunk(image, first, chunks))
            return false;
        m_words.done += chunkWords;
        emit m_out.firmwareUploadProgress(2 * m_words.done, 2 * m_words.all);
        const int sent = first + chunkWords;
        if (sent % progressWords == 0)
            flashProgress(SessionText::tr("Uploaded bytes: %1").arg(2 * sent));
    }
    flashProgress(SessionText::tr("Uploaded bytes: %1").arg(2 * words));
    return true;
}

bool FirmwareUpgrade::uploadChunk(const QList<quint16> &image, int first, Chunks chunks)
{
    int items = 1 + chunkWords;
    m_line.append({QueueItem::Address, reg::FlashPipe});
    for (int i = first; i < first + chunkWords; ++i)
        m_line.append({QueueItem::Value24, i < image.size() ? image.at(i) : fillerWord});
    if (chunks == Chunks::Programmed) {
        m_line.append({QueueItem::Address, reg::FlashCommand});
        m_line.append({QueueItem::Value24, reg::FlashProgramChunk});
        items += 2;
    }
    m_line.execute();
    for (int i = 0; i < items; ++i) {
        long outcome = 0;
        m_line.fetch(&outcome);
        if (outcome == outcomeRefused)
            m_errors.addDeviceErrors(commandFailed);
        if (!flashStepIsClean())
            return false;
    }
    return true;
}
