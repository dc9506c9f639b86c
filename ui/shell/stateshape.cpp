#include "stateshape.h"

#include <QPainter>
#include <QPainterPath>

namespace {

/// A drawing of 20 by 20.
QPainterPath outline(DriveLook look)
{
    QPainterPath path;
    switch (look) {
    case DriveLook::Enabled: // a full disc with a pointer to the right, as on a start button
    case DriveLook::Disabled:
    case DriveLook::NotConnected:
        path.addEllipse(2, 2, 16, 16);
        break;
    case DriveLook::Fault:
        path.addPolygon(QPolygonF({{10, 1.5}, {19, 18}, {1, 18}, {10, 1.5}}));
        break;
    case DriveLook::Homing: // a house
        path.addPolygon(QPolygonF({{10, 1.5}, {19, 10}, {16, 10}, {16, 18}, {4, 18}, {4, 10}, {1, 10}, {10, 1.5}}));
        break;
    case DriveLook::Upgrade: // an arrow upwards
        path.addPolygon(QPolygonF({{10, 1.5}, {18, 10}, {13, 10}, {13, 18}, {7, 18}, {7, 10}, {2, 10}, {10, 1.5}}));
        break;
    case DriveLook::LastKnown:
        path.addRoundedRect(2, 2, 16, 16, 4, 4);
        break;
    }
    return path;
}

bool isFilled(DriveLook look)
{
    return look == DriveLook::Enabled || look == DriveLook::Fault || look == DriveLook::Homing ||
           look == DriveLook::Upgrade;
}

/// What stands inside: a letter, or a mark that is drawn.
void paintInside(QPainter &painter, DriveLook look)
{
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(12);
    painter.setFont(font);
    switch (look) {
    case DriveLook::Enabled:
        painter.drawPolygon(QPolygonF({{7.5, 5.5}, {14.5, 10}, {7.5, 14.5}}));
        break;
    case DriveLook::Disabled:
        painter.drawRect(QRectF(7, 7, 6, 6));
        break;
    case DriveLook::Fault:
        painter.drawText(QRectF(0, 4, 20, 15), Qt::AlignCenter, QStringLiteral("!"));
        break;
    case DriveLook::LastKnown:
        painter.drawText(QRectF(0, 0, 20, 20), Qt::AlignCenter, QStringLiteral("?"));
        break;
    case DriveLook::NotConnected:
        painter.drawLine(QPointF(4.5, 15.5), QPointF(15.5, 4.5));
        break;
    default:
        break;
    }
}

} // namespace

StateShape::StateShape(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void StateShape::setLook(DriveLook look)
{
    if (m_look == look)
        return;
    m_look = look;
    update();
}

QSize StateShape::sizeHint() const
{
    const int side = fontMetrics().height() * 3 / 2;
    return {side, side};
}

QColor StateShape::colourOf(DriveLook look, const QPalette &palette)
{
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    switch (look) {
    case DriveLook::Enabled:
    case DriveLook::Homing:
        return dark ? QColor(0x6f, 0xdc, 0x8c) : QColor(0x0b, 0x6b, 0x2e);
    case DriveLook::Fault:
        return dark ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x12, 0x12);
    case DriveLook::Upgrade:
    case DriveLook::LastKnown:
        return dark ? QColor(0xf5, 0xc0, 0x4e) : QColor(0x8a, 0x52, 0x00);
    case DriveLook::Disabled:
    case DriveLook::NotConnected:
        break;
    }
    return palette.color(QPalette::WindowText);
}

void StateShape::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width() / 20.0, height() / 20.0);
    const QColor colour = colourOf(m_look, palette());
    const QPainterPath path = outline(m_look);
    Qt::PenStyle line = m_look == DriveLook::LastKnown ? Qt::DashLine : Qt::SolidLine;
    painter.setPen(QPen(colour, 1.8, line, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(isFilled(m_look) ? QBrush(colour) : QBrush(Qt::NoBrush));
    painter.drawPath(path);
    const QColor inside = isFilled(m_look) ? palette().color(QPalette::Window) : colour;
    const bool isLetter = m_look == DriveLook::Fault || m_look == DriveLook::LastKnown;
    painter.setPen(isLetter || m_look == DriveLook::NotConnected ? QPen(inside, 1.8) : QPen(Qt::NoPen));
    painter.setBrush(inside);
    paintInside(painter, m_look);
}
