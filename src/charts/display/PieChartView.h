#pragma once

#include "DisplayChart.h"

namespace kovamo {

/// A named part of a whole.
struct PieSlice {
    QString name;
    double value = 0;
    Color color;
};

/// Slices of a circle, from the top clockwise, each as wide as its share of the whole. Slices whose
/// value is not positive and finite take no room.
struct PieChartView {
    QString title;
    std::vector<PieSlice> slices;

    [[nodiscard]] std::vector<LegendEntry> legend() const;
    [[nodiscard]] AnyView plot() const;
    [[nodiscard]] std::vector<Reading> readings(QSizeF size) const;
    /// The slice in the direction of `place` from the circle's centre.
    [[nodiscard]] std::optional<Reading> reading(QPointF place, QSizeF size) const;

  private:
    [[nodiscard]] Reading readingAt(std::size_t index, QSizeF size) const;
};

} // namespace kovamo
