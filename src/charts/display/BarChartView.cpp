#include "BarChartView.h"

#include "PlotLabels.h"
#include "charts/BarChartStyle.h"
#include "charts/Chart.h"
#include "platform/views/ShapeViews.h"

#include <algorithm>
#include <cmath>

namespace kovamo {

namespace {

constexpr double labelWidth = 56;

QRectF barsRect(const QRectF& plot, bool labelled) {
    return plot.adjusted(labelled ? labelWidth : 0, 0, 0, 0);
}

/// The chart of the values as shares of the largest magnitude.
Chart barsChart(const ChartSeries& series) {
    double largest = 0;
    for (const double value : series.values)
        if (std::isfinite(value))
            largest = std::max(largest, std::abs(value));
    std::vector<double> shares;
    for (const double value : series.values)
        shares.push_back(largest > 0 ? value / largest : 0);
    return Chart(shares);
}

struct BarsPlot {
    BarChartView chart;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const {
        const std::vector<QString> upwards(chart.labels.rbegin(), chart.labels.rend());
        plotLabels(Qt::Vertical, upwards, rect.height(), 14)
            .paint(painter, {rect.x(), rect.y(), labelWidth, rect.height()}, environment);
        const FilledShape bar{RoundedRectangle{4}, chart.series.color};
        chartStyle(barsChart(chart.series), BarChartStyle{bar, chart.spacing})
            .paint(painter, barsRect(rect, !chart.labels.empty()), environment);
    }
};

} // namespace

std::vector<LegendEntry> BarChartView::legend() const {
    return {{series.name, series.color}};
}

AnyView BarChartView::plot() const {
    return BarsPlot{*this};
}

std::optional<Reading> BarChartView::readingAt(std::size_t index, QSizeF size) const {
    if (!std::isfinite(series.values[index]))
        return {};
    const QRectF bars = barsRect(QRectF(QPointF(), size), !labels.empty());
    const auto columns = columnData(barsChart(series).configuration);
    const QRectF upright(QPointF(), bars.size().transposed());
    const QRectF bar = laidOnSide(columnFrames(columns, spacing, upright)[index], bars);
    const double end = series.values[index] < 0 ? bar.left() : bar.right();
    const QString name = index < labels.size() ? labels[index] : series.name;
    return Reading{{end, bar.center().y()}, readingText(name, series.values[index]), series.color};
}

std::vector<Reading> BarChartView::readings(QSizeF size) const {
    std::vector<Reading> readings;
    for (std::size_t i = 0; i < series.values.size(); ++i)
        if (const auto reading = readingAt(i, size))
            readings.push_back(*reading);
    return readings;
}

std::optional<Reading> BarChartView::reading(QPointF place, QSizeF size) const {
    const double y = std::clamp(place.y(), 0., size.height());
    const auto index = columnAt(y, series.values.size(), spacing, size.height());
    return index ? readingAt(*index, size) : std::nullopt;
}

} // namespace kovamo
