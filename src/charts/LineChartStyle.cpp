#include "LineChartStyle.h"

#include "platform/views/ShapeViews.h"
#include "shapes/Line.h"

namespace kovamo {

AnyView LineChartStyle::makeBody(const ChartStyleConfiguration& configuration) const {
    const auto stroked = [this](auto shape) -> AnyView {
        return StrokedShape{TrimmedShape{std::move(shape), trimFrom.get(), trimTo.get()}, lineColor,
                            StrokeStyle{lineWidth}};
    };
    std::vector<PlotPoint> unitPoints = makeUnitPoints(rowSums(configuration));
    return lineType == LineType::line ? stroked(Line{std::move(unitPoints)})
                                      : stroked(QuadCurve{std::move(unitPoints)});
}

} // namespace kovamo
