#pragma once

#include "Geometry.h"

namespace kovamo {

/// A polygon of `sides` equal sides in the largest circle that fits `inset` points inside of the
/// rectangle, in its centre, the first vertex at the top. Fewer than three sides draw nothing.
struct RegularPolygon {
    unsigned sides = 3;
    double inset = 0;

    [[nodiscard]] QPainterPath path(const QRectF& rect) const;
};

/// The same with its corners rounded by arcs of `radius` points, which never take more than half a
/// side: from there on it is a circle.
struct RoundedRegularPolygon {
    unsigned sides = 3;
    double radius = 0;
    double inset = 0;

    [[nodiscard]] QPainterPath path(const QRectF& rect) const;
};

} // namespace kovamo
