#pragma once

#include "platform/views/ViewModifiers.h"

#include <QVarLengthArray>
#include <vector>

namespace kovamo {

/// The stacked parts of one position along a chart: mostly a single one, which needs no memory of
/// its own.
using ChartRow = QVarLengthArray<double, 1>;

/// What a chart hands to its style: one row for each position along the chart.
struct ChartStyleConfiguration {
    std::vector<ChartRow> dataMatrix;
};

/// The sum of each row, in order; 0 for an empty row.
[[nodiscard]] std::vector<double> rowSums(const ChartStyleConfiguration& configuration);

/// A chart style: a value that makes a view of a chart's data.
template<class S>
concept ChartStyle = std::copyable<S> &&
    requires(const S style, const ChartStyleConfiguration& configuration) {
    { style.makeBody(configuration) } -> View;
};

/// A chart style of any type. Copies share the one callable, which holds the style.
struct AnyChartStyle {
    using MakeBody = std::function<AnyView(const ChartStyleConfiguration&)>;
    std::shared_ptr<const MakeBody> styleMakeBody;

    // In this order: whether AnyChartStyle can be copied is not asked before it is told apart.
    template<class S>
    requires(!std::same_as<S, AnyChartStyle> && ChartStyle<S>) explicit AnyChartStyle(S style)
        : styleMakeBody(std::make_shared<const MakeBody>(
              [held = std::move(style)](const ChartStyleConfiguration& configuration) {
                  return AnyView(held.makeBody(configuration));
              })) {}

    [[nodiscard]] AnyView makeBody(const ChartStyleConfiguration& configuration) const {
        return (*styleMakeBody)(configuration);
    }
};

/// The environment's key of the style that charts are drawn with; a thin smooth line in the accent
/// colour where none is set.
struct ChartStyleKey {
    using Value = AnyChartStyle;
    static const Value& defaultValue();
};

/// `view` with every chart in it drawn with `style`, unless a style is set closer to the chart.
template<View V, ChartStyle S>
[[nodiscard]] auto chartStyle(V view, S style) {
    return environment<ChartStyleKey>(std::move(view), AnyChartStyle(std::move(style)));
}

} // namespace kovamo
