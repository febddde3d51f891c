#include "LineChartViews.h"

#include "PlotLabels.h"
#include "charts/AreaChartStyle.h"
#include "charts/Chart.h"
#include "charts/LineChartStyle.h"
#include "platform/views/ShapeViews.h"
#include "shapes/GridPattern.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kovamo {

namespace {

constexpr double labelHeight = 20;
constexpr double headroom = 8;

/// The rectangle that the lines are drawn in: the middles of the shares that the labels have of the
/// width are where its points stand.
QRectF linesRect(const QRectF& plot, std::size_t positions, bool labelled) {
    const double side = plot.width() / (2 * std::max<double>(1, static_cast<double>(positions)));
    return plot.adjusted(side, headroom, -side, labelled ? -labelHeight : -headroom);
}

std::size_t positions(const std::vector<ChartSeries>& series) {
    std::size_t most = 0;
    for (const ChartSeries& one : series)
        most = std::max(most, one.values.size());
    return most;
}

/// The series as fractions of their common scale, all as long as the longest: what a series lacks
/// has no place.
std::vector<std::vector<double>> fractions(const std::vector<ChartSeries>& series) {
    PlotScale scale;
    for (const ChartSeries& one : series)
        scale.include(one.values);
    std::vector<std::vector<double>> rows;
    for (const ChartSeries& one : series)
        rows.emplace_back(scale.fractions(one.values))
            .resize(positions(series), std::numeric_limits<double>::quiet_NaN());
    return rows;
}

/// A dot where a line has one point alone, and so no length to draw.
struct LonePoint {
    std::vector<double> row;
    double radius = 0;

    [[nodiscard]] QPainterPath path(const QRectF& rect) const {
        const std::vector<QPointF> points = mapUnitPoints(makeUnitPoints(row), rect);
        QPainterPath path;
        if (points.size() == 1)
            path.addEllipse(points.front(), radius, radius);
        return path;
    }
};

/// Layers over a grid, drawn in the lines' rectangle, and the labels below it.
struct LinesPlot {
    std::vector<AnyView> layers;
    std::vector<QString> labels;
    std::size_t positions = 0;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const {
        const QRectF lines = linesRect(rect, positions, !labels.empty());
        const QRectF grid(rect.x(), lines.y(), rect.width(), lines.height());
        StrokedShape{GridPattern{0, 5, 0}, Color{SystemColor::separator}, StrokeStyle{0.5}}.paint(
            painter, grid, environment);
        plotLabels(Qt::Horizontal, labels, rect.width(), 28)
            .paint(painter, {rect.x(), lines.bottom(), rect.width(), labelHeight}, environment);
        ZStack{layers}.paint(painter, lines, environment);
    }
};

} // namespace

std::vector<LegendEntry> MultiLineChartView::legend() const {
    std::vector<LegendEntry> entries;
    for (const ChartSeries& one : series)
        entries.push_back({one.name, one.color});
    return entries;
}

AnyView MultiLineChartView::plot() const {
    LinesPlot plot{{}, labels, positions(series)};
    const auto rows = fractions(series);
    for (std::size_t i = 0; i < series.size(); ++i) {
        plot.layers.emplace_back(
            chartStyle(Chart(rows[i]), LineChartStyle{lineType, series[i].color, lineWidth}));
        plot.layers.emplace_back(FilledShape{LonePoint{rows[i], 2 * lineWidth}, series[i].color});
    }
    return plot;
}

std::vector<Reading> MultiLineChartView::readings(QSizeF size) const {
    const QRectF lines = linesRect(QRectF(QPointF(), size), positions(series), !labels.empty());
    std::vector<std::vector<PlotPoint>> unitPoints;
    for (const std::vector<double>& row : fractions(series))
        unitPoints.push_back(makeUnitPoints(row));
    std::vector<Reading> readings;
    for (std::size_t at = 0; at < positions(series); ++at) {
        for (std::size_t i = 0; i < series.size(); ++i) {
            const QPointF point = lines.topLeft() + mapUnitPoint(unitPoints[i][at], lines);
            if (!std::isfinite(point.y()))
                continue;
            QString name = at < labels.size() ? labels[at] : QString();
            if (series.size() > 1 || name.isEmpty())
                name = name.isEmpty() ? series[i].name : series[i].name % u' ' % name;
            readings.push_back({point, readingText(name, series[i].values[at]), series[i].color});
        }
    }
    return readings;
}

std::optional<Reading> MultiLineChartView::reading(QPointF place, QSizeF size) const {
    const auto distance = [place](const Reading& reading) {
        return std::pair(std::abs(reading.position.x() - place.x()),
                         std::abs(reading.position.y() - place.y()));
    };
    const std::vector<Reading> all = readings(size);
    const auto nearest = std::ranges::min_element(all, {}, distance);
    return nearest == all.end() ? std::nullopt : std::optional(*nearest);
}

MultiLineChartView LineChartView::lines() const {
    return {title, {series}, labels, lineType, lineWidth};
}

std::vector<LegendEntry> LineChartView::legend() const {
    return lines().legend();
}

AnyView LineChartView::plot() const {
    const LinearGradient shade{{{series.color.name, 0.35}, {series.color.name, 0}}};
    const std::vector<double> row = fractions({series}).front();
    const Chart chart(row);
    LinesPlot plot{{}, labels, series.values.size()};
    plot.layers = {
        chartStyle(chart, AreaChartStyle{lineType, FilledShape{Rectangle{}, shade}}),
        chartStyle(chart, LineChartStyle{lineType, series.color, lineWidth}),
        FilledShape{LonePoint{row, 2 * lineWidth}, series.color},
    };
    return plot;
}

std::vector<Reading> LineChartView::readings(QSizeF size) const {
    return lines().readings(size);
}

std::optional<Reading> LineChartView::reading(QPointF place, QSizeF size) const {
    return lines().reading(place, size);
}

} // namespace kovamo
