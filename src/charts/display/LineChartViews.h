#pragma once

#include "ChartSeries.h"
#include "DisplayChart.h"
#include "charts/LineType.h"

namespace kovamo {

/// Several series as lines on one scale, over a grid, with the names of the positions below.
struct MultiLineChartView {
    QString title;
    std::vector<ChartSeries> series;
    std::vector<QString> labels;
    LineType lineType = LineType::quadCurve;
    double lineWidth = 2;

    [[nodiscard]] std::vector<LegendEntry> legend() const;
    [[nodiscard]] AnyView plot() const;
    [[nodiscard]] std::vector<Reading> readings(QSizeF size) const;
    [[nodiscard]] std::optional<Reading> reading(QPointF place, QSizeF size) const;
};

/// One series as a line, with the area below it shaded.
struct LineChartView {
    QString title;
    ChartSeries series;
    std::vector<QString> labels;
    LineType lineType = LineType::quadCurve;
    double lineWidth = 2;

    [[nodiscard]] std::vector<LegendEntry> legend() const;
    [[nodiscard]] AnyView plot() const;
    [[nodiscard]] std::vector<Reading> readings(QSizeF size) const;
    [[nodiscard]] std::optional<Reading> reading(QPointF place, QSizeF size) const;

  private:
    [[nodiscard]] MultiLineChartView lines() const;
};

} // namespace kovamo
