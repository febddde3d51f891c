#include "ColumnLayout.h"

#include <algorithm>
#include <cmath>

namespace kovamo {

std::vector<ColumnData> columnData(const ChartStyleConfiguration& configuration) {
    std::vector<ColumnData> columns;
    columns.reserve(configuration.dataMatrix.size());
    for (const double sum : rowSums(configuration))
        columns.push_back({std::ssize(columns), sum});
    return columns;
}

bool hasNegative(std::span<const ColumnData> columns) {
    return std::ranges::any_of(columns, [](const ColumnData& column) { return column.data < 0; });
}

ColumnMetrics columnMetrics(std::size_t count, double spacing, double totalWidth) {
    if (count == 0)
        return {};
    const auto columns = static_cast<double>(count), gaps = static_cast<double>(count - 1);
    const double width = (totalWidth - spacing * gaps) / columns;
    if (width > 0)
        return {width, spacing};
    return {std::max(totalWidth, 0.) / columns, 0};
}

std::vector<QRectF> columnFrames(std::span<const ColumnData> columns, double spacing,
                                 const QRectF& bounds) {
    const ColumnMetrics metrics = columnMetrics(columns.size(), spacing, bounds.width());
    const bool twoSided = hasNegative(columns);
    const double full = twoSided ? bounds.height() * 0.5 : bounds.height();
    const double base = twoSided ? bounds.center().y() : bounds.bottom();

    std::vector<QRectF> frames;
    frames.reserve(columns.size());
    for (const auto& [id, value] : columns) {
        const double ideal = std::abs(value) * full;
        const double height = std::isfinite(ideal) ? ideal : 0;
        const double x = bounds.x() + static_cast<double>(id) * (metrics.width + metrics.spacing);
        const double y = twoSided && value < 0 ? base : base - height;
        frames.emplace_back(x, y, metrics.width, height);
    }
    return frames;
}

QRectF laidOnSide(const QRectF& frame, const QRectF& bounds) {
    const QPointF corner(bounds.width() - frame.bottom(), frame.x());
    return {bounds.topLeft() + corner, frame.size().transposed()};
}

std::optional<std::size_t> columnAt(double x, std::size_t count, double spacing,
                                    double totalWidth) {
    if (count == 0 || !(totalWidth > 0 && x >= 0 && x <= totalWidth))
        return {};
    const ColumnMetrics metrics = columnMetrics(count, spacing, totalWidth);
    const double slot = (x + metrics.spacing / 2) / (metrics.width + metrics.spacing);
    return std::min(static_cast<std::size_t>(std::max(slot, 0.)), count - 1);
}

std::vector<QRectF> visibleColumnFrames(std::span<const ColumnData> columns, double spacing,
                                        const QRectF& bounds, double pixel) {
    if (!(bounds.width() > 0))
        return {};
    std::vector<QRectF> frames = columnFrames(columns, spacing, bounds);
    if (static_cast<double>(frames.size()) * pixel > 2 * bounds.width()) {
        const bool twoSided = hasNegative(columns);
        const auto cells = static_cast<std::size_t>(bounds.width() / pixel) + 1;
        std::vector<QRectF> tallest(2 * cells);
        for (std::size_t i = 0; i < frames.size(); ++i) {
            const double cell = std::floor((frames[i].center().x() - bounds.x()) / pixel);
            const bool down = twoSided && columns[i].data < 0;
            QRectF& best = tallest[static_cast<std::size_t>(cell) + (down ? cells : 0)];
            if (frames[i].height() > best.height())
                best = {bounds.x() + cell * pixel, frames[i].y(), pixel, frames[i].height()};
        }
        frames = std::move(tallest);
    }
    std::erase_if(frames, [](const QRectF& frame) { return !(frame.height() > 0); });
    for (QRectF& frame : frames) {
        const double missing = std::max(0.0, pixel / 2 - frame.width());
        frame.adjust(-missing / 2, 0, missing / 2, 0);
    }
    return frames;
}

} // namespace kovamo
