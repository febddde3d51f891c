#include "HalfCapsule.h"

#include <algorithm>

namespace kovamo {

QPainterPath HalfCapsule::path(const QRectF& rect) const {
    const double width = rect.width() - 2 * inset, height = rect.height() - 2 * inset;
    const double diameter = std::min(width, height);
    QPainterPath path;
    if (!(diameter > 0))
        return path;
    path.moveTo(width, 0);
    path.arcTo(0, 0, diameter, diameter, 90, 90);
    path.arcTo(0, height - diameter, diameter, diameter, 180, 90);
    path.lineTo(width, height);
    path.translate(inset, inset);
    return path;
}

} // namespace kovamo
