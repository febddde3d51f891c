#include "Shape.h"

#include <QTransform>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace kovamo {

namespace {

/// A closed outline of four continuous corners. Each corner is two mirrored cubics that meet on its
/// diagonal, where the circle of the radius lies. A cubic whose first three points lie on the edge
/// starts there without curvature; its second point is where the curvature at the meeting point
/// comes out as the circle's.
QPainterPath continuousCorners(const QRectF& rect, double radius) {
    const double diagonal = radius * (1 - 1 / std::numbers::sqrt2);
    const double bend = 2 * diagonal + 3 * std::numbers::sqrt2 * diagonal * diagonal / radius;
    const double reach = std::min(1.5 * radius, std::min(rect.width(), rect.height()) / 2);

    QPainterPath path;
    const auto addCorner = [&](QPointF corner, QPointF in, QPointF out) {
        // `in` points back along the edge the outline arrives on, `out` along the one it leaves by.
        const QPointF middle = corner + (in + out) * diagonal;
        if (path.isEmpty())
            path.moveTo(corner + in * reach);
        else
            path.lineTo(corner + in * reach);
        path.cubicTo(corner + in * bend, corner + in * 2 * diagonal, middle);
        path.cubicTo(corner + out * 2 * diagonal, corner + out * bend, corner + out * reach);
    };
    addCorner(rect.topLeft(), {0, 1}, {1, 0});
    addCorner(rect.topRight(), {-1, 0}, {0, 1});
    addCorner(rect.bottomRight(), {0, -1}, {-1, 0});
    addCorner(rect.bottomLeft(), {1, 0}, {0, -1});
    path.closeSubpath();
    return path;
}

} // namespace

QPainterPath Rectangle::path(const QRectF& rect) const {
    QPainterPath path;
    path.addRect(rect);
    return path;
}

double Capsule::cornerRadius(const QRectF& rect) const {
    return std::min(rect.width(), rect.height()) / 2;
}

QPainterPath Capsule::path(const QRectF& rect) const {
    return RoundedRectangle{cornerRadius(rect)}.path(rect);
}

double RoundedRectangle::cornerRadius(const QRectF& rect) const {
    return std::min(radius, Capsule{}.cornerRadius(rect));
}

QPainterPath RoundedRectangle::path(const QRectF& rect) const {
    const double fitting = cornerRadius(rect);
    if (!(fitting > 0))
        return Rectangle{}.path(rect);
    if (continuous)
        return continuousCorners(rect, fitting);
    QPainterPath path;
    path.addRoundedRect(rect, fitting, fitting);
    return path;
}

} // namespace kovamo
