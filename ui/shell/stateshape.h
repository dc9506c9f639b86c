/// \file
/// The sign before the drive's state: a form of its own for each state, so that nobody needs its colour.
#ifndef VELBRIN_UI_STATESHAPE_H
#define VELBRIN_UI_STATESHAPE_H

#include "driveheadline.h"

#include <QWidget>

/// A square widget as high as the large word beside it. It says nothing itself to a screen reader: the word does.
class StateShape : public QWidget
{
    Q_OBJECT

public:
    explicit StateShape(QWidget *parent = nullptr);
    void setLook(DriveLook look);
    QSize sizeHint() const override;

    /// The colour that goes with a state on this background: dark on a light palette, light on a dark one.
    static QColor colourOf(DriveLook look, const QPalette &palette);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    DriveLook m_look = DriveLook::NotConnected;
};

#endif
