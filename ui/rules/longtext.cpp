#include "longtext.h"

int LongText::heightForWidth(int width) const
{
    if (m_text != text()) { // setting a text tells nobody
        m_text = text();
        m_heights.clear();
    }
    const auto known = m_heights.constFind(width);
    return known != m_heights.constEnd() ? *known : *m_heights.insert(width, QLabel::heightForWidth(width));
}

QSize LongText::sizeHint() const
{
    const int width = fontMetrics().averageCharWidth() * 80;
    return {width, heightForWidth(width)};
}

QSize LongText::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 40, fontMetrics().height()};
}

void LongText::changeEvent(QEvent *event)
{
    m_heights.clear(); // font, style, direction
    QLabel::changeEvent(event);
}
