#include "filework.h"

FileWork::FileWork(QObject *parent) : QObject(parent)
{
    m_pool.setMaxThreadCount(1);
}

FileWork::~FileWork()
{
    m_pool.waitForDone();
}

void FileWork::begin(const QString &fileName, const Work &work)
{
    m_pool.start([this, fileName, work] {
        const QString problem = work(fileName);
        QMetaObject::invokeMethod(
            this, [this, fileName, problem] { emit finished(fileName, problem); }, Qt::QueuedConnection);
    });
}
