#pragma once

#include "EnvironmentValues.h"
#include "UnitPoint.h"

#include <QBrush>
#include <vector>

namespace kovamo {

/// What a shape is filled or stroked with: a brush for the shape's rectangle.
template<class S>
concept ShapeStyle = std::copyable<S> &&
    requires(const S style, const QRectF& rect, const EnvironmentValues& environment) {
    { style.brush(rect, environment) } -> std::same_as<QBrush>;
};

/// A named colour of the platform at an opacity from 0 to 1; it gets its components from the
/// appearance in force when it is painted.
struct Color {
    SystemColor name = SystemColor::label;
    double opacity = 1;

    [[nodiscard]] QColor resolved(const EnvironmentValues& environment) const;
    [[nodiscard]] QBrush brush(const QRectF& rect, const EnvironmentValues& environment) const;

    friend bool operator==(const Color&, const Color&) = default;
};

/// Colours that run into each other from one point of the filled rectangle to another, their stops
/// evenly spaced. One colour fills evenly, none paints nothing.
struct LinearGradient {
    std::vector<Color> colors;
    UnitPoint startPoint = UnitPoint::top();
    UnitPoint endPoint = UnitPoint::bottom();

    [[nodiscard]] QBrush brush(const QRectF& rect, const EnvironmentValues& environment) const;

    friend bool operator==(const LinearGradient&, const LinearGradient&) = default;
};

} // namespace kovamo
