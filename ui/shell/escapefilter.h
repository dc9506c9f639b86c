/// \file
/// "Esc disables the drive", whatever window, box, menu or popup of the program has the keyboard.
#ifndef VELBRIN_UI_ESCAPEFILTER_H
#define VELBRIN_UI_ESCAPEFILTER_H

#include <QObject>

/// An application-wide event filter. It reports the key and lets it through: the dialog that is open still closes.
/// A window shortcut alone would not do, since popups, menus and other windows keep the key for themselves.
class EscapeFilter : public QObject
{
    Q_OBJECT

public:
    /// Installs itself on the application, which must exist.
    explicit EscapeFilter(QObject *parent = nullptr);

public slots:
    /// For the window's own shortcut: reports the key unless this press has been reported already.
    void shortcutActivated();

signals:
    /// Once a press of the key; repeats of a held key are not reported.
    void escapePressed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void report();

    bool m_reported = false;
};

#endif
