#pragma once

#include "ChartStyle.h"
#include "LineType.h"
#include "platform/views/Binding.h"
#include "platform/views/ShapeStyle.h"

namespace kovamo {

/// A line through the row sums, from the left edge to the right, 0 at the bottom and 1 at the top.
/// Of its length, the part between `trimFrom` and `trimTo` is drawn.
struct LineChartStyle {
    LineType lineType = LineType::line;
    Color lineColor;
    double lineWidth = 1;
    Binding<double> trimFrom = Binding<double>::constant(0);
    Binding<double> trimTo = Binding<double>::constant(1);

    [[nodiscard]] AnyView makeBody(const ChartStyleConfiguration& configuration) const;
};

} // namespace kovamo
