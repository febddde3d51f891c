#pragma once

#include "ColumnPainting.h"

namespace kovamo {

/// What `BarChartStyle` makes of a chart's data.
template<View Bar>
struct BarChartBody {
    Bar bar;
    double spacing = 0;
    std::vector<ColumnData> bars;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const {
        if (hasNegative(bars))
            paintZeroLine(painter, rect, Qt::Vertical, environment);
        const QRectF upright(QPointF(), rect.size().transposed());
        for (const QRectF& frame : paintedColumnFrames(painter, bars, spacing, upright))
            bar.paint(painter, laidOnSide(frame, rect), environment);
    }
};

/// Columns laid on their side: the first bar at the top, each growing from the left edge to the
/// right, or in a two-sided chart from the middle, negative values to the left.
template<View Bar>
struct BarChartStyle {
    Bar bar;
    double spacing = 0;

    [[nodiscard]] BarChartBody<Bar> makeBody(const ChartStyleConfiguration& configuration) const {
        return {bar, spacing, columnData(configuration)};
    }
};

template<View Bar>
BarChartStyle(Bar, double) -> BarChartStyle<Bar>;

} // namespace kovamo
