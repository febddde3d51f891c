#pragma once

#include "platform/views/ShapeStyle.h"

#include <QString>
#include <span>
#include <vector>

namespace kovamo {

/// A row of values of one kind, of any size, under a name.
struct ChartSeries {
    QString name;
    std::vector<double> values;
    Color color;
};

/// Brings values of any size into the unit range: the smallest, or 0, becomes 0 and the largest, or
/// 0, becomes 1. Values that are not finite do not take part and stay as they are.
struct PlotScale {
    double lowest = 0;
    double highest = 0;

    /// Widens the scale to hold `values`.
    void include(std::span<const double> values);

    [[nodiscard]] std::vector<double> fractions(std::span<const double> values) const;
};

/// The words that a magnifier reads out for a value: "Name, 1,234.5", or the value alone.
[[nodiscard]] QString readingText(const QString& name, double value);

} // namespace kovamo
