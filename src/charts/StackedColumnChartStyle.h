#pragma once

#include "ChartStyle.h"
#include "platform/views/ShapeStyle.h"

namespace kovamo {

/// One column's parts over each other, the first at the bottom, each as high as its share of the
/// whole. The colours are repeated when they run out. Parts that are not positive take no room.
struct DefaultStackedColumnView {
    ChartRow data;
    std::vector<Color> colors;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const;
};

/// A row of columns, `spacing` points apart, each as high as its row's positive parts together, the
/// view that `column` makes of the row, its corners rounded by `cornerRadius` points.
struct StackedColumnChartStyle {
    double spacing = 0;
    std::function<AnyView(const ChartRow&)> column;
    double cornerRadius = 0;

    [[nodiscard]] AnyView makeBody(const ChartStyleConfiguration& configuration) const;
};

} // namespace kovamo
