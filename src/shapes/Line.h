#pragma once

#include "Geometry.h"

namespace kovamo {

/// Straight lines through unit points. Measured from (0, 0), wherever the rectangle stands; a point
/// that is not finite is left out.
struct Line {
    std::vector<PlotPoint> unitPoints;

    [[nodiscard]] QPainterPath path(const QRectF& rect) const;
};

/// A smooth curve through unit points, level at each of them. Measured from (0, 0), wherever the
/// rectangle stands; a point that is not finite is left out.
struct QuadCurve {
    std::vector<PlotPoint> unitPoints;

    [[nodiscard]] QPainterPath path(const QRectF& rect) const;
};

} // namespace kovamo
