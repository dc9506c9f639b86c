#include "elided.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QStylePainter>
#include <QToolTip>
#include <algorithm>

namespace {

constexpr int leastCharacters = 8;

QSize narrowed(const QWidget &widget, const QSize &wanted)
{
    return {std::min(wanted.width(), widget.fontMetrics().averageCharWidth() * leastCharacters), wanted.height()};
}

bool isToolTip(const QEvent &event)
{
    return event.type() == QEvent::ToolTip;
}

} // namespace

QSize ElidedLabel::minimumSizeHint() const
{
    return narrowed(*this, QLabel::minimumSizeHint());
}

QString ElidedLabel::shownText() const
{
    if (width() >= sizeHint().width()) // advances are rounded: a text that just fits would be cut
        return text();
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    const QString shown = shownText();
    if (shown == text())
        return QLabel::paintEvent(event);
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), int(alignment()), palette(), isEnabled(), shown, foregroundRole());
}

bool ElidedLabel::event(QEvent *event)
{
    if (isToolTip(*event) && shownText() != text()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text().toHtmlEscaped(), this);
        return true;
    }
    return QLabel::event(event);
}

QSize ElidedButton::minimumSizeHint() const
{
    return narrowed(*this, QToolButton::minimumSizeHint());
}

void ElidedButton::paintEvent(QPaintEvent *)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    const int missing = sizeHint().width() - width();
    if (missing > 0)
        option.text =
            fontMetrics().elidedText(text(), Qt::ElideRight, fontMetrics().horizontalAdvance(text()) - missing);
    QStylePainter(this).drawComplexControl(QStyle::CC_ToolButton, option);
}

bool ElidedButton::event(QEvent *event)
{
    if (isToolTip(*event) && sizeHint().width() > width()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                           QStringLiteral("<p><b>%1</b></p><p>%2</p>").arg(text().toHtmlEscaped(), toolTip()), this);
        return true;
    }
    return QToolButton::event(event);
}
