#pragma once

#include "Geometry.h"

namespace kovamo {

/// A grid of lines spread evenly over the rectangle's size, the outermost ones on its edges,
/// `inset` points inside. Fewer than two lines in a direction draw none. Measured from (0, 0).
struct GridPattern {
    double inset = 0;
    int horizontalLines = 0;
    int verticalLines = 0;

    [[nodiscard]] QPainterPath path(const QRectF& rect) const;
};

} // namespace kovamo
