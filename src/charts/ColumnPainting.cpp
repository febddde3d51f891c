#include "ColumnPainting.h"

#include "platform/views/ShapeViews.h"
#include "shapes/Line.h"

namespace kovamo {

std::vector<QRectF> paintedColumnFrames(const QPainter& painter,
                                        std::span<const ColumnData> columns, double spacing,
                                        const QRectF& bounds) {
    return visibleColumnFrames(columns, spacing, bounds, pixelWidth(painter));
}

void paintZeroLine(QPainter& painter, const QRectF& rect, Qt::Orientation axis,
                   const EnvironmentValues& environment) {
    const Line line =
        axis == Qt::Horizontal ? Line{{{0, 0.5}, {1, 0.5}}} : Line{{{0.5, 0}, {0.5, 1}}};
    StrokedShape{line, Color{SystemColor::gray, 0.8}, StrokeStyle{1}}.paint(painter, rect,
                                                                            environment);
}

} // namespace kovamo
