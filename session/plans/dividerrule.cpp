#include "dividerrule.h"

#include "parameters.h"

#include <QDebug>

int dividerValue(int resolution, int speed)
{
    // The largest factor for which the fastest velocity, in counts per control cycle, still fits 16 bits.
    const double x = 32767.0 / (resolution * 4.0 * speed / 60.0 / 2500.0);
    for (int divider : {25, 50, 200, 400}) {
        if (divider > x)
            return divider;
    }
    return 800;
}

bool autoSetDIVvalue(Parameters &list)
{
    SingleParam divider = list.getParam(QStringLiteral("DIV"));
    const SingleParam speed = list.getParam(QStringLiteral("MMS"));
    const SingleParam resolution = list.getParam(QStringLiteral("FBR"));
    for (const SingleParam &p : {divider, speed, resolution}) {
        if (p.name == QLatin1String("NULL"))
            return false;
    }
    divider.value = dividerValue(static_cast<int>(resolution.value), static_cast<int>(speed.value));
    qDebug() << "DIV autoset to " << divider.value;
    return list.replaceParam(divider);
}
