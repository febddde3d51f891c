#pragma once

#include "ColumnPainting.h"

namespace kovamo {

/// A rectangle in the accent colour: the ready-made column.
struct DefaultColumnView {
    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const;
};

/// What `ColumnChartStyle` makes of a chart's data.
template<View Column>
struct ColumnChartBody {
    Column column;
    double spacing = 0;
    std::vector<ColumnData> columns;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const {
        if (hasNegative(columns))
            paintZeroLine(painter, rect, Qt::Horizontal, environment);
        for (const QRectF& frame : paintedColumnFrames(painter, columns, spacing, rect))
            column.paint(painter, frame, environment);
    }
};

/// A row of columns, one for each row sum, every one the view `column` stretched to the column's
/// frame, `spacing` points apart: see `columnFrames`.
template<View Column>
struct ColumnChartStyle {
    Column column;
    double spacing = 0;

    [[nodiscard]] ColumnChartBody<Column>
    makeBody(const ChartStyleConfiguration& configuration) const {
        return {column, spacing, columnData(configuration)};
    }
};

template<View Column>
ColumnChartStyle(Column, double) -> ColumnChartStyle<Column>;

} // namespace kovamo
