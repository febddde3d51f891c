#pragma once

#include "AreaChart.h"
#include "ChartStyle.h"
#include "platform/views/ShapeStyle.h"

namespace kovamo {

/// A view cut to the area below a line through the row sums.
template<View Fill>
struct AreaChartStyle {
    LineType lineType = LineType::line;
    Fill fill;

    [[nodiscard]] auto makeBody(const ChartStyleConfiguration& configuration) const {
        return ClippedView{
            fill, AreaChart{lineType, makeUnitPoints(rowSums(configuration)), std::nullopt}};
    }
};

template<View Fill>
AreaChartStyle(LineType, Fill) -> AreaChartStyle<Fill>;

/// One area for each part of the rows, each standing on the one before it, the first at the bottom.
/// A row's missing and not finite parts count as 0. The colours are repeated when they run out.
struct StackedAreaChartStyle {
    LineType lineType = LineType::line;
    std::vector<Color> colors;

    [[nodiscard]] ZStack makeBody(const ChartStyleConfiguration& configuration) const;
};

} // namespace kovamo
