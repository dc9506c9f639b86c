/// \file
/// Reader of firmware files (*.tdf), which carry the two images of one drive family.
///
/// Little-endian: "TDFW", version (16 bit, 300), device type (16 bit), I/O image length and TC image length (32 bit
/// each, bytes), I/O image, TC image (16-bit words both), checksum (32 bit: the sum of all bytes before it).
#ifndef VELBRIN_MODEL_FIRMWAREFILE_H
#define VELBRIN_MODEL_FIRMWAREFILE_H

#include <QList>
#include <QObject>

/// Load one file into one object; after a failure discard the object.
class FirmwareFile : public QObject
{
    Q_OBJECT

public:
    explicit FirmwareFile(QObject *parent = nullptr) : QObject(parent) {}

    /// Reads and checks `fileName` for a drive of type id `connectedType`: only the family (thousands) has to agree.
    /// Returns an empty string or the reason to refuse. Pipes and devices are not opened, and files too large to be
    /// firmware (16 MiB) are not read.
    QString loadFile(const QString &fileName, int connectedType);
    /// What the text of loadFile says, to decide by.
    enum class Refusal { None, CannotOpen, UnknownType, UnsupportedVersion, OtherDeviceType, Corrupted };
    Refusal refusal() const { return m_refusal; }

    void getTCcontents(bool &) {}     ///< does nothing
    void getHostFWcontents(bool &) {} ///< does nothing

    QList<quint16> tcImage; ///< words of the core firmware, in file order
    QList<quint16> ioImage; ///< words of the I/O-side firmware, in file order
    // As read; 0 where the file ends before them.
    qint16 fileVersion = 0;
    qint16 deviceType = 0;
    qint32 ioImageLength = 0; ///< bytes
    qint32 tcImageLength = 0; ///< bytes

private:
    Refusal read(const QString &fileName, int connectedType);

    Refusal m_refusal = Refusal::None;
};

#endif
