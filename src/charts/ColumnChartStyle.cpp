#include "ColumnChartStyle.h"

#include "platform/views/ShapeViews.h"

namespace kovamo {

void DefaultColumnView::paint(QPainter& painter, const QRectF& rect,
                              const EnvironmentValues& environment) const {
    FilledShape{Rectangle{}, Color{SystemColor::accent}}.paint(painter, rect, environment);
}

} // namespace kovamo
