/// \file
/// One line on the terminal that says what is going on, for work that takes longer than a moment.
#ifndef VELBRIN_CLI_PROGRESS_H
#define VELBRIN_CLI_PROGRESS_H

#include <QElapsedTimer>
#include <QString>
#include <QTimer>

#include <functional>

/// Writes to standard error, and only when that is a terminal. The line is gone when the work is done.
class Progress
{
public:
    Progress();
    ~Progress() { clear(); }

    /// Shows `text` with the seconds that it has been there.
    void show(const QString &text);
    void clear();
    /// Another text behind the same clock.
    void update(const QString &text);
    /// From now on shows nothing: somebody else draws on the terminal.
    void hush() { m_terminal = false; }
    /// Takes the line away while `write` writes to the terminal.
    void aside(const std::function<void()> &write);
    /// A line that stays, terminal or not.
    void note(const QString &text);

private:
    void draw();

    bool m_terminal;
    bool m_shown = false;
    QString m_text;
    QElapsedTimer m_since;
    QTimer m_timer;
};

#endif
