/// \file
/// Greyed texts that can still be read.
#ifndef VELBRIN_UI_DISABLEDINK_H
#define VELBRIN_UI_DISABLEDINK_H

#include <QObject>

/// The style greys to a contrast of less than 2 : 1. This mixes text and background anew, to about 3.5 : 1, for the
/// whole program and for each palette that the desktop changes to. One per program, on the user-interface thread.
class DisabledInk : public QObject
{
    Q_OBJECT

public:
    /// Call it when the style is chosen.
    explicit DisabledInk(QObject *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void mix();

    bool m_isMixing = false;
};

#endif
