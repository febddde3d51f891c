#pragma once

#include "ChartStyle.h"

#include <ranges>

namespace kovamo {

/// A sequence of binary floating-point values.
template<class R>
concept Series = std::ranges::input_range<R> && std::floating_point<std::ranges::range_value_t<R>>;

/// A chart of data, and nothing but data: how it looks is up to the environment's chart style.
struct Chart {
    Environment<ChartStyleKey> style;
    ChartStyleConfiguration configuration;

    /// A chart of one series: each value becomes a row of its own, as it is.
    template<Series R>
    explicit Chart(R&& series) {
        if constexpr (std::ranges::sized_range<R>)
            configuration.dataMatrix.reserve(std::ranges::size(series));
        for (const auto value : series)
            configuration.dataMatrix.push_back({static_cast<double>(value)});
    }

    /// A chart of several rows, each the parts of one position, as they are.
    template<std::ranges::input_range R>
    requires Series<std::ranges::range_reference_t<R>>
    explicit Chart(R&& rows) {
        for (const auto& row : rows) {
            auto& parts = configuration.dataMatrix.emplace_back();
            for (const auto value : row)
                parts.push_back(static_cast<double>(value));
        }
    }

    /// What the style of `environment` makes of the data.
    [[nodiscard]] AnyView body(const EnvironmentValues& environment) const {
        return (*style.value(environment).styleMakeBody)(configuration);
    }

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const {
        body(environment).paint(painter, rect, environment);
    }
};

} // namespace kovamo
