#include "PieChartView.h"

#include "ChartSeries.h"
#include "platform/views/ShapeViews.h"
#include "platform/views/ViewModifiers.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kovamo {

namespace {

QRectF circle(const QRectF& rect) {
    const double radius = std::min(rect.width(), rect.height()) / 2;
    return {rect.center() - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)};
}

/// The part of the largest circle in a rectangle between two fractions of a turn, counted from the
/// top clockwise.
struct Sector {
    double from = 0;
    double to = 1;

    [[nodiscard]] QPainterPath path(const QRectF& rect) const {
        QPainterPath path;
        path.moveTo(rect.center());
        path.arcTo(circle(rect), 90 - 360 * from, 360 * (from - to));
        path.closeSubpath();
        return path;
    }
};

/// The sector of every slice, in order.
std::vector<Sector> sectors(const std::vector<PieSlice>& slices) {
    const auto room = [](const PieSlice& slice) {
        return std::isfinite(slice.value) ? std::max(slice.value, 0.) : 0;
    };
    double whole = 0;
    for (const PieSlice& slice : slices)
        whole += room(slice);
    std::vector<Sector> sectors;
    double passed = 0;
    for (const PieSlice& slice : slices) {
        const double share = whole > 0 ? room(slice) / whole : 0;
        sectors.push_back({passed, passed + share});
        passed += share;
    }
    return sectors;
}

} // namespace

std::vector<LegendEntry> PieChartView::legend() const {
    std::vector<LegendEntry> entries;
    for (const PieSlice& slice : slices)
        entries.push_back({slice.name, slice.color});
    return entries;
}

AnyView PieChartView::plot() const {
    const std::vector<Sector> parts = sectors(slices);
    ZStack plot;
    for (std::size_t i = 0; i < parts.size(); ++i)
        if (parts[i].to > parts[i].from)
            plot.layers.emplace_back(FilledShape{parts[i], slices[i].color});
    return plot;
}

Reading PieChartView::readingAt(std::size_t index, QSizeF size) const {
    const QRectF round = circle(QRectF(QPointF(), size));
    const Sector part = sectors(slices)[index];
    const double middle = std::numbers::pi * (part.from + part.to);
    const QPointF point =
        round.center() + QPointF(std::sin(middle), -std::cos(middle)) * (round.width() / 3);
    return {point, readingText(slices[index].name, slices[index].value), slices[index].color};
}

std::vector<Reading> PieChartView::readings(QSizeF size) const {
    const std::vector<Sector> parts = sectors(slices);
    std::vector<Reading> readings;
    for (std::size_t i = 0; i < parts.size(); ++i)
        if (parts[i].to > parts[i].from)
            readings.push_back(readingAt(i, size));
    return readings;
}

std::optional<Reading> PieChartView::reading(QPointF place, QSizeF size) const {
    const QPointF direction = place - circle(QRectF(QPointF(), size)).center();
    const double turn = std::atan2(direction.x(), -direction.y()) / (2 * std::numbers::pi);
    const double at = turn < 0 ? turn + 1 : turn;
    const std::vector<Sector> parts = sectors(slices);
    for (std::size_t i = 0; i < parts.size(); ++i)
        if (parts[i].from <= at && at < parts[i].to)
            return readingAt(i, size);
    return {};
}

} // namespace kovamo
