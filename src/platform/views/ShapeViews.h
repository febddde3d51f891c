#pragma once

#include "AnyView.h"
#include "Shape.h"
#include "ShapeStyle.h"

#include <cmath>

namespace kovamo {

/// The width of a pixel of the painter's device, in the painter's units.
[[nodiscard]] inline double pixelWidth(const QPainter& painter) {
    const QTransform& device = painter.deviceTransform();
    return 1 / std::hypot(device.m11(), device.m12());
}

/// A shape filled inside its outline, overlaps included, with smooth edges.
template<Shape S, ShapeStyle F>
struct FilledShape {
    S shape;
    F style;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const {
        const QRectF box(QPointF(), rect.size());
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(rect.topLeft());
        if (looksSquare(painter, box)) {
            // A third of the work, and a chart of a year's records has hundreds of such columns.
            painter.fillRect(box, style.brush(box, environment));
        } else {
            QPainterPath path = shape.path(box);
            path.setFillRule(Qt::WindingFill);
            painter.fillPath(path, style.brush(box, environment));
        }
        painter.translate(-rect.topLeft());
    }

  private:
    /// Whether the corners are rounded by half a pixel at most, which cannot be seen.
    [[nodiscard]] bool looksSquare(const QPainter& painter, const QRectF& box) const {
        if constexpr (RoundedShape<S>)
            return shape.cornerRadius(box) <= pixelWidth(painter) / 2;
        return false;
    }
};

// Clang before 17 finds the arguments of an aggregate only by a guide.
template<Shape S, ShapeStyle F>
FilledShape(S, F) -> FilledShape<S, F>;

/// How an outline is drawn: its width in points and its ends; joins are mitred up to ten widths.
struct StrokeStyle {
    double lineWidth = 1;
    Qt::PenCapStyle lineCap = Qt::RoundCap;
};

/// A shape's outline. A width that is not positive draws nothing.
template<Shape S, ShapeStyle F>
struct StrokedShape {
    S shape;
    F style;
    StrokeStyle stroke;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const {
        if (!(stroke.lineWidth > 0))
            return;
        const QRectF box(QPointF(), rect.size());
        QPen pen(style.brush(box, environment), stroke.lineWidth, Qt::SolidLine, stroke.lineCap,
                 Qt::SvgMiterJoin);
        pen.setMiterLimit(10);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(rect.topLeft());
        painter.strokePath(shape.path(box), pen);
        painter.translate(-rect.topLeft());
    }
};

template<Shape S, ShapeStyle F>
StrokedShape(S, F, StrokeStyle) -> StrokedShape<S, F>;

/// The part of a shape's path between two fractions of its length.
template<Shape S>
struct TrimmedShape {
    S shape;
    double from = 0;
    double to = 1;

    [[nodiscard]] QPainterPath path(const QRectF& rect) const {
        return trimmed(shape.path(rect), from, to);
    }
};

template<Shape S>
TrimmedShape(S, double, double) -> TrimmedShape<S>;

} // namespace kovamo
