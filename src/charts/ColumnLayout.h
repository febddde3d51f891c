#pragma once

#include "ChartStyle.h"

#include <optional>
#include <span>

namespace kovamo {

/// One column to draw: its index, which is its identity, and its value.
struct ColumnData {
    std::ptrdiff_t id = 0;
    double data = 0;
};

/// The columns of a chart: the row sums, numbered from 0.
[[nodiscard]] std::vector<ColumnData> columnData(const ChartStyleConfiguration& configuration);

/// Whether any value is below 0, which makes the chart two-sided: columns then stand on its middle
/// line or hang from it, half as high. Not-a-number is not below 0.
[[nodiscard]] bool hasNegative(std::span<const ColumnData> columns);

/// How a number of columns share a width, in points: evenly, with gaps between them.
struct ColumnMetrics {
    double width = 0;
    double spacing = 0;
};

/// Columns and gaps that together span exactly `totalWidth`. Where gaps of `spacing` leave the
/// columns no width, the gaps give way and the columns have it all.
[[nodiscard]] ColumnMetrics columnMetrics(std::size_t count, double spacing, double totalWidth);

/// The frame of every column in `bounds`, left to right: |value| times the height of the bounds, on
/// their bottom edge, or in a two-sided chart half of that, up or down from the middle. Nothing
/// limits the height; where it is not finite, the frame has none.
[[nodiscard]] std::vector<QRectF> columnFrames(std::span<const ColumnData> columns, double spacing,
                                               const QRectF& bounds);

/// The place in `bounds` of a column's frame laid out in the transposed rectangle at (0, 0): from
/// the top instead of from the left, growing to the right instead of up.
[[nodiscard]] QRectF laidOnSide(const QRectF& frame, const QRectF& bounds);

/// The index of the column at `x` points from the left edge, of the nearer one in a gap; none
/// beside the chart.
[[nodiscard]] std::optional<std::size_t> columnAt(double x, std::size_t count, double spacing,
                                                  double totalWidth);

/// The frames worth painting on a device whose pixels are `pixel` points wide: those of some
/// height. Where more than two columns crowd into each pixel, the tallest up and the tallest down
/// of a pixel stand for all in it, as wide as the pixel: a lone peak still shows, and the cost has
/// a bound. A column thinner than half a pixel is widened to it, or it would fade out.
[[nodiscard]] std::vector<QRectF> visibleColumnFrames(std::span<const ColumnData> columns,
                                                      double spacing, const QRectF& bounds,
                                                      double pixel);

} // namespace kovamo
