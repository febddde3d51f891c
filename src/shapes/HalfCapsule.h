#pragma once

#include "Geometry.h"

namespace kovamo {

/// Round on the left, square on the right, `inset` points inside of the rectangle's size. Measured
/// from (0, 0); nothing where the inset leaves no room.
struct HalfCapsule {
    double inset = 0;

    [[nodiscard]] QPainterPath path(const QRectF& rect) const;
};

} // namespace kovamo
