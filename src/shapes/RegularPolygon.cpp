#include "RegularPolygon.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kovamo {

QPainterPath RegularPolygon::path(const QRectF& rect) const {
    return RoundedRegularPolygon{sides, 0, inset}.path(rect);
}

QPainterPath RoundedRegularPolygon::path(const QRectF& rect) const {
    const double outer = std::min(rect.width(), rect.height()) / 2 - inset;
    QPainterPath path;
    if (sides < 3 || !(outer > 0))
        return path;
    const double half = std::numbers::pi / sides;
    const double arc = radius > 0 ? std::min(radius, outer * std::cos(half)) : 0;
    // The centres of the arcs, or sharp corners, lie on a circle about the polygon's centre.
    const double reach = outer - arc / std::cos(half);
    for (unsigned i = 0; i < sides; ++i) {
        const double turn = 2 * half * i;
        const QPointF direction(std::sin(turn), -std::cos(turn));
        const QPointF corner = rect.center() + direction * reach;
        if (!(arc > 0)) {
            addPolyline(path, {corner});
            continue;
        }
        const QRectF circle(corner - QPointF(arc, arc), QSizeF(2 * arc, 2 * arc));
        const double first = 90 - (turn - half) * 180 / std::numbers::pi;
        if (i == 0)
            path.arcMoveTo(circle, first);
        path.arcTo(circle, first, -360. / sides);
    }
    path.closeSubpath();
    return path;
}

} // namespace kovamo
