/// \file
/// Writes files beside the window's thread.
#ifndef VELBRIN_UI_FILEWORK_H
#define VELBRIN_UI_FILEWORK_H

#include <QObject>
#include <QThreadPool>

#include <functional>

/// One after the other. What was begun is written also when this object goes: its destructor waits, some tens of
/// milliseconds a file.
class FileWork : public QObject
{
    Q_OBJECT

public:
    /// Writes the file. Returns an empty text, or why not, without markup.
    using Work = std::function<QString(const QString &fileName)>;

    explicit FileWork(QObject *parent = nullptr);
    ~FileWork() override;

    /// `work` runs on another thread and takes copies of what it needs with it.
    void begin(const QString &fileName, const Work &work);

signals:
    /// On the thread of this object; `problem` is what the work returned.
    void finished(const QString &fileName, const QString &problem);

private:
    QThreadPool m_pool;
};

#endif
