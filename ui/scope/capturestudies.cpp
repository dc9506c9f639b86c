#include "capturestudies.h"

CaptureStudies::CaptureStudies(QObject *parent) : QObject(parent)
{
    m_pool.setMaxThreadCount(1);
}

CaptureStudies::~CaptureStudies()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void CaptureStudies::begin(int id, const CaptureRecord &record)
{
    m_pool.start([this, id, record] {
        const CaptureFigures figures = captureFigures(record);
        QMetaObject::invokeMethod(
            this, [this, id, figures] { emit finished(id, figures); }, Qt::QueuedConnection);
    });
}
