#include "AreaChart.h"

#include <algorithm>

namespace kovamo {

QPainterPath AreaChart::path(const QRectF& rect) const {
    const auto addEdge = lineType == LineType::line ? addPolyline : addSmoothCurve;
    QPainterPath path;
    addEdge(path, mapUnitPoints(unitPoints, rect));
    if (path.elementCount() == 0)
        return path;
    if (bottomUnitPoints) {
        std::vector<QPointF> bottom = mapUnitPoints(*bottomUnitPoints, rect);
        std::ranges::reverse(bottom);
        addEdge(path, bottom);
    } else {
        addPolyline(path, {mapUnitPoint({1, 0}, rect), mapUnitPoint({0, 0}, rect)});
    }
    path.closeSubpath();
    return path;
}

} // namespace kovamo
