/// \file
/// SIGTERM, SIGINT, SIGHUP and SIGQUIT end the program as a closed window would: the drive is left properly, links are removed.
#ifndef QUITSIGNALS_H
#define QUITSIGNALS_H

#include <QObject>

/// Turns the first signal into QCoreApplication::exit(0); the second ends the program at once. One at a time; the
/// application must exist.
class QuitSignals : public QObject
{
    Q_OBJECT

public:
    explicit QuitSignals(QObject *parent = nullptr);
    ~QuitSignals() override;

private:
    int m_pipe[2] = {-1, -1};
};

#endif
