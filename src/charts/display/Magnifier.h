#pragma once

#include "platform/views/AnyView.h"
#include "platform/views/ShapeStyle.h"

namespace kovamo {

/// A round lens over a place of a plot that is drawn elsewhere in `plotSize`: the plot around the
/// place, enlarged twice, with a dot of `color` on the place itself.
struct Magnifier {
    AnyView plot;
    QSizeF plotSize;
    QPointF focus;
    Color color;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const;
};

} // namespace kovamo
