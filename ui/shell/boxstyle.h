/// \file
/// Tick boxes that can be seen on a dark ground.
#ifndef VELBRIN_UI_BOXSTYLE_H
#define VELBRIN_UI_BOXSTYLE_H

#include <QProxyStyle>

/// The Fusion style, which draws the outline of a tick box darker than the ground: on a dark one nothing is to be seen
/// of a box that is not ticked. There it is drawn in a mixture of ground and text, about 4 : 1. For
/// QApplication::setStyle(), which takes it over.
class BoxStyle : public QProxyStyle
{
    Q_OBJECT

public:
    BoxStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
};

#endif
