#pragma once

#include <QRectF>

namespace kovamo {

/// A place in a rectangle as fractions of its size, (0, 0) the top left and (1, 1) the bottom right
/// corner, as the drawing layer counts.
struct UnitPoint {
    double x = 0;
    double y = 0;

    [[nodiscard]] static constexpr UnitPoint top() { return {0.5, 0}; }
    [[nodiscard]] static constexpr UnitPoint bottom() { return {0.5, 1}; }
    [[nodiscard]] static constexpr UnitPoint leading() { return {0, 0.5}; }
    [[nodiscard]] static constexpr UnitPoint trailing() { return {1, 0.5}; }

    /// The point of `rect` that stands at these fractions.
    [[nodiscard]] QPointF in(const QRectF& rect) const {
        return {rect.x() + x * rect.width(), rect.y() + y * rect.height()};
    }

    friend bool operator==(const UnitPoint&, const UnitPoint&) = default;
};

} // namespace kovamo
