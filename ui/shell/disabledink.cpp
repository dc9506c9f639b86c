#include "disabledink.h"

#include "ink.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>

namespace {

constexpr double share = 0.45; ///< of the text's colour

struct Ink
{
    QPalette::ColorRole text;
    QPalette::ColorRole ground;
};
constexpr Ink inks[] = {{QPalette::WindowText, QPalette::Window},
                        {QPalette::Text, QPalette::Base},
                        {QPalette::ButtonText, QPalette::Button}};

} // namespace

DisabledInk::DisabledInk(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
    mix();
}

bool DisabledInk::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && watched == qApp)
        mix();
    return false;
}

void DisabledInk::mix()
{
    if (m_isMixing)
        return;
    m_isMixing = true;
    QPalette colours = QApplication::palette();
    for (const Ink &ink : inks)
        colours.setColor(
            QPalette::Disabled, ink.text,
            mixedInk(colours.color(QPalette::Active, ink.text), colours.color(QPalette::Active, ink.ground), share));
    QApplication::setPalette(colours);
    m_isMixing = false;
}
