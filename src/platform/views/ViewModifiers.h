#pragma once

#include "AnyView.h"
#include "Shape.h"

#include <QMarginsF>
#include <vector>

namespace kovamo {

/// Views painted over each other in the same rectangle, the first one at the bottom.
struct ZStack {
    std::vector<AnyView> layers;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const {
        for (const AnyView& layer : layers)
            layer.paint(painter, rect, environment);
    }
};

/// A view inside of margins, in points.
template<View V>
struct PaddedView {
    V content;
    QMarginsF margins;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const {
        content.paint(painter, rect.marginsRemoved(margins), environment);
    }
};

// Clang before 17 finds the arguments of an aggregate only by a guide.
template<View V>
PaddedView(V, QMarginsF) -> PaddedView<V>;

/// A view cut off, with smooth edges, outside of a shape's inside.
template<View V, Shape S>
struct ClippedView {
    V content;
    S shape;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const {
        QPainterPath path = shape.path(QRectF(QPointF(), rect.size()));
        path.setFillRule(Qt::WindingFill);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setClipPath(path.translated(rect.topLeft()), Qt::IntersectClip);
        content.paint(painter, rect, environment);
        painter.restore();
    }
};

template<View V, Shape S>
ClippedView(V, S) -> ClippedView<V, S>;

/// A view that is told `value` for `K`, with all that it encloses.
template<View V, EnvironmentKey K>
struct EnvironmentView {
    V content;
    typename K::Value value;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const {
        content.paint(painter, rect, environment.setting<K>(value));
    }
};

/// `view` with the environment's value of `K` replaced.
template<EnvironmentKey K, View V>
[[nodiscard]] EnvironmentView<V, K> environment(V view, typename K::Value value) {
    return {std::move(view), std::move(value)};
}

} // namespace kovamo
