#pragma once

#include <QPainterPath>
#include <concepts>

namespace kovamo {

/// A shape: a value with a path for a rectangle. Painting asks for the path of a rectangle at (0,
/// 0) and moves it into place, so a shape is free to look at the rectangle's size alone.
template<class S>
concept Shape = std::copyable<S> && requires(const S shape, const QRectF& rect) {
    { shape.path(rect) } -> std::same_as<QPainterPath>;
};

/// A shape that is a rectangle with corners rounded by so many points.
template<class S>
concept RoundedShape = Shape<S> && requires(const S shape, const QRectF& rect) {
    { shape.cornerRadius(rect) } -> std::same_as<double>;
};

/// The whole rectangle.
struct Rectangle {
    [[nodiscard]] QPainterPath path(const QRectF& rect) const;
};

/// The rectangle with its two short ends rounded to half circles.
struct Capsule {
    [[nodiscard]] double cornerRadius(const QRectF& rect) const;
    [[nodiscard]] QPainterPath path(const QRectF& rect) const;
};

/// A rectangle with corners rounded by `radius` points, at most half of the shorter side. Corners
/// of continuous curvature leave the edges without a jump in curvature and bend like the circle of
/// the radius only at their middle; they take up to one and a half times the radius of each edge.
struct RoundedRectangle {
    double radius = 0;
    bool continuous = false;

    [[nodiscard]] double cornerRadius(const QRectF& rect) const;
    [[nodiscard]] QPainterPath path(const QRectF& rect) const;
};

/// The part of `path` between two fractions of its length, each brought into 0…1; empty where
/// `from` is not below `to`.
[[nodiscard]] QPainterPath trimmed(const QPainterPath& path, double from, double to);

} // namespace kovamo
