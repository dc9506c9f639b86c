/// \file
/// The window for messages that need no answer.
#ifndef VELBRIN_UI_ERRORWINDOW_H
#define VELBRIN_UI_ERRORWINDOW_H

#include "message.h"

#include <QErrorMessage>
#include <QQueue>
#include <QUrl>

class QCheckBox;
class QTextEdit;

/// Shows one message after another and offers to stop showing a repeated one. What kind of message it is decides
/// whether it may be held back (maySuppress): whoever stands beside the machine has to know when a drive does not do or
/// hold what they believe. Addresses in a message are links.
class ErrorWindow : public QErrorMessage
{
    Q_OBJECT

public:
    explicit ErrorWindow(QWidget *parent);

    /// The program is ending: what still waits is dropped and nothing is shown any more.
    void endMessages();
    void done(int result) override;

public slots:
    /// Queues a message (its text is rich text); an empty one shows nothing, an equal one that still waits is not
    /// queued twice. One that may be suppressed waits until no other box is open, and behind those that may not.
    void tell(const Message &message);
    void note(const QString &text) { tell({MessageKind::Note, text}); }

signals:
    /// A message that nobody may suppress, as one line of plain text, for the status bar.
    void vitalMessage(const QString &line);
    void linkActivated(const QUrl &url);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showNext();

    QQueue<Message> m_waiting;
    QString m_shown;
    QCheckBox *m_again;
    QTextEdit *m_text;
    int m_vitalCount = 0;
    bool m_ended = false;
};

/// A rich text whose bare http and https addresses are links; those inside tags and links stay as they are.
QString withLinks(const QString &html);

#endif
