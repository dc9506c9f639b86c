/// \file
/// One scope channel with its samples.
#ifndef VELBRIN_MODEL_CAPTUREDATA_H
#define VELBRIN_MODEL_CAPTUREDATA_H

#include <QList>
#include <QMetaType>
#include <QPair>
#include <QString>

/// A plain value; lists of it are copied freely between threads.
struct CaptureData
{
    QList<QPair<double, double>> samples; ///< (time in s, value in `unit`), in time order
    QString name;                         ///< display name, e.g. "Torque setpoint [A]"
    QString key;                          ///< short key, e.g. "torqueref"
    QString unit;                         ///< unit text, e.g. "A"
    double scale = 1.0;                   ///< raw drive word to unit
    QString group;                        ///< channels of one group share an axis
    bool enabled = false;                 ///< selected for the next capture
    quint32 sourceBit = 0;                ///< bit in the drive's capture source mask
    bool isUnsigned = false;              ///< raw word is unsigned 16-bit, otherwise signed
};

Q_DECLARE_METATYPE(QList<CaptureData>)

#endif
