#include "StackedColumnChartStyle.h"

#include "ColumnLayout.h"
#include "platform/views/ShapeViews.h"

#include <cmath>

namespace kovamo {

namespace {

double positivePart(double value) {
    return std::isfinite(value) && value > 0 ? value : 0;
}

struct StackedColumnChartBody {
    StackedColumnChartStyle style;
    ChartStyleConfiguration configuration;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const {
        const auto& rows = configuration.dataMatrix;
        std::vector<ColumnData> columns;
        for (const auto& row : rows) {
            ColumnData& column = columns.emplace_back(ColumnData{std::ssize(columns), 0});
            for (const double part : row)
                column.data += positivePart(part);
        }
        const auto frames = columnFrames(columns, style.spacing, rect);
        for (std::size_t i = 0; i < frames.size(); ++i)
            ClippedView{style.column(rows[i]), RoundedRectangle{style.cornerRadius}}.paint(
                painter, frames[i], environment);
    }
};

} // namespace

void DefaultStackedColumnView::paint(QPainter& painter, const QRectF& rect,
                                     const EnvironmentValues& environment) const {
    double whole = 0;
    for (const double part : data)
        whole += positivePart(part);
    double bottom = rect.bottom();
    for (qsizetype i = 0; i < data.size() && whole > 0 && !colors.empty(); ++i) {
        const double height = rect.height() * (positivePart(data[i]) / whole);
        bottom -= height;
        FilledShape{Rectangle{}, colors[static_cast<std::size_t>(i) % colors.size()]}.paint(
            painter, {rect.x(), bottom, rect.width(), height}, environment);
    }
}

AnyView StackedColumnChartStyle::makeBody(const ChartStyleConfiguration& configuration) const {
    return StackedColumnChartBody{*this, configuration};
}

} // namespace kovamo
