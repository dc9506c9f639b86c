/// \file
/// The window for messages that need no answer.
#ifndef ERRORWINDOW_H
#define ERRORWINDOW_H

#include <QErrorMessage>
#include <QQueue>

class QCheckBox;

/// Shows one message after another and offers to stop showing a repeated one. Texts about a lost line, a write that
/// the drive refused or a disable that nothing confirmed are never held back and never offered to be: whoever stands
/// beside the machine has to know.
class ErrorWindow : public QErrorMessage
{
    Q_OBJECT

public:
    explicit ErrorWindow(QWidget *parent);

    /// Whether a text can never be suppressed.
    static bool isVital(const QString &text);
    /// The program is ending: what still waits is dropped and nothing is shown any more.
    void endMessages();

public slots:
    /// Queues a text (rich text); an empty one shows nothing, an equal one that still waits is not queued twice.
    /// A text that is not vital waits until no other box is open, and behind those that are.
    void showMessage(const QString &text);

signals:
    /// A vital message as one line of plain text, for the status bar.
    void vitalMessage(const QString &line);

public:
    void done(int result) override;

private:
    void showNext();

    QQueue<QString> m_waiting;
    QString m_shown;
    QCheckBox *m_again;
    int m_vitalCount = 0;
    bool m_ended = false;
};

#endif
