/// \file
/// Works out figures and axis sheets beside the window's thread.
#ifndef VELBRIN_UI_CAPTURESTUDIES_H
#define VELBRIN_UI_CAPTURESTUDIES_H

#include "capturehistory.h"

#include <QObject>
#include <QThreadPool>

/// One after the other, some milliseconds each. Those that have not begun end with this object.
class CaptureStudies : public QObject
{
    Q_OBJECT

public:
    explicit CaptureStudies(QObject *parent = nullptr);
    ~CaptureStudies() override;

    void begin(int id, const CaptureRecord &record);

signals:
    /// On the thread of this object.
    void finished(int id, const CaptureFigures &figures);

private:
    QThreadPool m_pool;
};

#endif
