#include "boxstyle.h"

#include <QCheckBox>
#include <QImage>
#include <QPalette>
#include <QStyleOptionButton>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

/// Share of the light that a colour gives back, 0 to 1 (WCAG 2.1, relative luminance, its curve taken as a power).
double luminance(const QColor &colour)
{
    return 0.2126 * std::pow(colour.redF(), 2.2) + 0.7152 * std::pow(colour.greenF(), 2.2) +
           0.0722 * std::pow(colour.blueF(), 2.2);
}

} // namespace

TEST(BoxStyle, ABoxThatIsNotTickedCanBeSeenOnADarkGround)
{
    BoxStyle style;
    QCheckBox box;
    box.setStyle(&style);
    const QColor ground(0x2b, 0x2b, 0x2b);
    QPalette colours(ground, ground);
    colours.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    colours.setColor(QPalette::Text, QColor(0xee, 0xee, 0xee));
    box.setPalette(colours);
    box.resize(40, 30);
    const QImage picture = box.grab().toImage();
    QStyleOptionButton option;
    option.initFrom(&box);
    const QRect at = style.subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
    for (const QPoint &edge : {QPoint(at.left(), at.center().y()), QPoint(at.center().x(), at.top()),
                               QPoint(at.right(), at.center().y()), QPoint(at.center().x(), at.bottom())}) {
        double best = 0.0; // the line may be drawn a pixel further in
        for (int x = -1; x <= 1; ++x) {
            for (int y = -1; y <= 1; ++y) {
                if (picture.valid(edge + QPoint(x, y)))
                    best = std::max(best, luminance(picture.pixelColor(edge + QPoint(x, y))));
            }
        }
        EXPECT_GE((best + 0.05) / (luminance(ground) + 0.05), 3.0) << edge.x() << ", " << edge.y();
    }
}
