#pragma once

#include "ChartSeries.h"
#include "DisplayChart.h"

namespace kovamo {

/// A series as bars, the first at the top, the names of the positions on their left. A negative
/// value turns the chart two-sided.
struct BarChartView {
    QString title;
    ChartSeries series;
    std::vector<QString> labels;
    double spacing = 6;

    [[nodiscard]] std::vector<LegendEntry> legend() const;
    [[nodiscard]] AnyView plot() const;
    [[nodiscard]] std::vector<Reading> readings(QSizeF size) const;
    [[nodiscard]] std::optional<Reading> reading(QPointF place, QSizeF size) const;

  private:
    /// The end of the bar at `index`; none where its value is not finite.
    [[nodiscard]] std::optional<Reading> readingAt(std::size_t index, QSizeF size) const;
};

} // namespace kovamo
