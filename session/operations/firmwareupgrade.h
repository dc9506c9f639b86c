/// \file
/// Firmware upgrade of a drive that runs its bootloader. No disable is served in here: a bootloader has no enable
/// register, and nothing turns.
#ifndef VELBRIN_SESSION_FIRMWAREUPGRADE_H
#define VELBRIN_SESSION_FIRMWAREUPGRADE_H

#include "operation.h"

class FirmwareUpgrade : private Operation
{
public:
    explicit FirmwareUpgrade(OperationContext &context) : Operation(context) {}

    /// Of the bootloader that is connected: decides whether it can verify and protect.
    void setBootloaderVersion(int version) { m_bootloaderVersion = version; }
    /// Tells everything in the log of the upgrade (firmwareUpgradeMsg), and leaves the connection to its end.
    void flashFirmware(const FlashRequest &request);

private:
    bool flash(const FlashRequest &request);
    bool flashImages(const FlashRequest &request, const QList<quint16> &ioImage, const QList<quint16> &tcImage);
    bool hasIOSide() const;
    void flashProgress(const QString &text);
    bool flashFailed(const QString &text);
    bool flashStepIsClean();
    void sendFlashCommand(int command);
    bool flashCommand(int command);
    bool startFirmware();
    bool flashFirmwareIOSide(const QList<quint16> &image, bool resetToFactory);
    bool erase(bool resetToFactory);
    bool verifyIOSide();
    bool flashFirmwareTCSide(const QList<quint16> &image);
    static int wordsToUpload(const QList<quint16> &image);
    enum class Chunks { Programmed, Kept }; ///< each at once, or kept until the whole image is there
    bool uploadImage(const QList<quint16> &image, Chunks chunks);
    bool uploadChunk(const QList<quint16> &image, int first, Chunks chunks);

    int m_bootloaderVersion = 0;
    struct
    {
        int done = 0;
        int all = 0;
    } m_words; ///< of the images, for the progress
};

#endif
