#include "ui/common/LoadColor.h"

QColor loadColor(double f)
{
    if (!(f > 0))
        f = 0;
    if (f > 1)
        f = 1;
    if (f < 0.5)
        return QColor::fromHsvF(float(0.33 - 0.18 * (2 * f)), 0.75f, 0.85f);
    return QColor::fromHsvF(float(0.15 - 0.15 * (2 * (f - 0.5))), 0.85f, 0.9f);
}
