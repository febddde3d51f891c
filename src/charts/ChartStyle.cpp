#include "ChartStyle.h"

#include "LineChartStyle.h"

#include <numeric>

namespace kovamo {

std::vector<double> rowSums(const ChartStyleConfiguration& configuration) {
    std::vector<double> sums;
    sums.reserve(configuration.dataMatrix.size());
    for (const auto& row : configuration.dataMatrix)
        sums.push_back(std::accumulate(row.begin(), row.end(), 0.));
    return sums;
}

const AnyChartStyle& ChartStyleKey::defaultValue() {
    static const AnyChartStyle style(LineChartStyle{LineType::quadCurve, Color{SystemColor::accent},
                                                    1, Binding<double>::constant(0),
                                                    Binding<double>::constant(1)});
    return style;
}

} // namespace kovamo
