#include "AreaChartStyle.h"

#include "platform/views/ShapeViews.h"

#include <algorithm>
#include <cmath>

namespace kovamo {

ZStack StackedAreaChartStyle::makeBody(const ChartStyleConfiguration& configuration) const {
    const auto& rows = configuration.dataMatrix;
    qsizetype parts = 0;
    for (const auto& row : rows)
        parts = std::max(parts, row.size());

    ZStack areas;
    std::vector<double> heights(rows.size());
    std::optional<std::vector<PlotPoint>> bottom;
    for (qsizetype part = 0; part < parts && !colors.empty(); ++part) {
        for (std::size_t i = 0; i < rows.size(); ++i)
            if (part < rows[i].size() && std::isfinite(rows[i][part]))
                heights[i] += rows[i][part];
        std::vector<PlotPoint> top = makeUnitPoints(heights);
        areas.layers.emplace_back(
            FilledShape{AreaChart{lineType, top, bottom},
                        colors[static_cast<std::size_t>(part) % colors.size()]});
        bottom = std::move(top);
    }
    return areas;
}

} // namespace kovamo
