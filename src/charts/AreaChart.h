#pragma once

#include "LineType.h"
#include "shapes/Geometry.h"

#include <optional>

namespace kovamo {

/// The area below a line through unit points, down to a second line through `bottomUnitPoints` or,
/// where there is none, to the rectangle's bottom edge.
struct AreaChart {
    LineType lineType = LineType::line;
    std::vector<PlotPoint> unitPoints;
    std::optional<std::vector<PlotPoint>> bottomUnitPoints;

    [[nodiscard]] QPainterPath path(const QRectF& rect) const;
};

} // namespace kovamo
