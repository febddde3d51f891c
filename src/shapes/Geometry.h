#pragma once

#include "platform/views/Shape.h"

#include <QPointF>
#include <QRectF>
#include <ranges>
#include <vector>

namespace kovamo {

/// A unit point of a plot: fractions across the rectangle that a shape is drawn in, (0, 0) its
/// bottom left and (1, 1) its top right corner. Values outside of 0…1 land outside of the
/// rectangle.
struct PlotPoint {
    double x = 0;
    double y = 0;

    friend bool operator==(const PlotPoint&, const PlotPoint&) = default;
};

/// Unit points at the heights of `data`, spread evenly from the left edge to the right; a single
/// one stands at the left edge. Heights are not rescaled.
template<std::ranges::input_range R>
requires std::floating_point<std::ranges::range_value_t<R>>
[[nodiscard]] std::vector<PlotPoint> makeUnitPoints(R&& data) {
    std::vector<PlotPoint> points;
    for (const auto value : data)
        points.push_back({0, static_cast<double>(value)});
    const double step = points.size() < 2 ? 1 : 1 / static_cast<double>(points.size() - 1);
    for (std::size_t i = 0; i < points.size(); ++i)
        points[i].x = static_cast<double>(i) * step;
    return points;
}

/// The place of `u` in a rectangle as large as `rect` that stands at (0, 0), y downwards.
[[nodiscard]] QPointF mapUnitPoint(PlotPoint u, const QRectF& rect);

/// The places of `unitPoints`, in order, without those that are not finite and so have no place.
[[nodiscard]] std::vector<QPointF> mapUnitPoints(const std::vector<PlotPoint>& unitPoints,
                                                 const QRectF& rect);

[[nodiscard]] QPointF midPoint(QPointF p1, QPointF p2);

/// The control point of the quadratic curve from p1 to p2 that leaves p1 horizontally: halfway
/// across, as far from the middle's height as p1 is, on p1's side.
[[nodiscard]] QPointF controlPoint(QPointF p1, QPointF p2);

/// Continues `path` straight through `points`; an empty path starts at the first one.
void addPolyline(QPainterPath& path, const std::vector<QPointF>& points);

/// Continues `path` smoothly through `points`; an empty path starts at the first one. Each point
/// gets a horizontal tangent, and the curve turns halfway between neighbours.
void addSmoothCurve(QPainterPath& path, const std::vector<QPointF>& points);

/// A shape that can be drawn inside of its rectangle by `inset` points on every side.
template<class S>
concept InsettableShape = Shape<S> && requires(S shape) {
    { shape.inset } -> std::same_as<double&>;
};

/// `shape` drawn `by` points further inside.
template<InsettableShape S>
[[nodiscard]] S inset(S shape, double by) {
    shape.inset += by;
    return shape;
}

} // namespace kovamo
