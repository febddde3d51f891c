#pragma once

#include "AnyView.h"
#include "Shape.h"
#include "ShapeStyle.h"

#include <cmath>

namespace kovamo {

/// A shape filled inside its outline, overlaps included, with smooth edges.
template<Shape S, ShapeStyle F>
struct FilledShape {
    S shape;
    F style;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const {
        const QRectF box(QPointF(), rect.size());
        QPainterPath path = shape.path(box);
        path.setFillRule(Qt::WindingFill);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(rect.topLeft());
        painter.fillPath(path, style.brush(box, environment));
        painter.translate(-rect.topLeft());
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
