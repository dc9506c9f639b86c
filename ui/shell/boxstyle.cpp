#include "boxstyle.h"

#include "ink.h"

#include <QPainter>
#include <QStyleOption>

namespace {

constexpr int darkBelow = 128; // lightness of the ground
constexpr double share = 0.5;  ///< of the text's colour

} // namespace

void BoxStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
    if (!isBox || option->palette.color(QPalette::Window).lightness() >= darkBelow)
        return;
    painter->save();
    // Of a greyed box with the greyed text's.
    painter->setPen(mixedInk(option->palette.color(QPalette::Text), option->palette.color(QPalette::Base), share));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(option->rect).adjusted(0.5, 0.5, -1.5, -1.5));
    painter->restore();
}
