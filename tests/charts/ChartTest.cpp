#include "charts/Chart.h"

#include "charts/AreaChartStyle.h"
#include "charts/AxisLabels.h"
#include "charts/ColumnChartStyle.h"
#include "charts/LineChartStyle.h"
#include "charts/StackedColumnChartStyle.h"
#include "platform/views/Raster.h"
#include "platform/views/ShapeViews.h"

#include <list>
#include <map>
#include <sstream>

namespace kovamo {
namespace {

constexpr int scale = 4;
const QSize size(120, 140);
const QRectF rect(10, 20, 100, 100);

const Color red{SystemColor::red}, yellow{SystemColor::yellow}, blue{SystemColor::blue};
const FilledShape capsule{Capsule{}, LinearGradient{{red, yellow}}};

template<ChartStyle S>
QImage drawn(const Chart& chart, const S& style) {
    return raster(chartStyle(chart, style), size, rect, scale);
}

/// Fails unless the places of the rectangle, in points from its top left corner, have the colours
/// said of them: "x y colour", r for red, y yellow, b blue, a accent, l the middle line, - nothing.
void expectColors(const QImage& image, const char* places) {
    std::istringstream words(places);
    double x = 0, y = 0;
    char name = 0;
    const Color gray{SystemColor::gray, 0.8};
    const QImage line = raster(FilledShape{Rectangle{}, gray}, {9, 9});
    const std::map<char, QColor> colors{
        {'r', light(SystemColor::red)},  {'y', light(SystemColor::yellow)},
        {'b', light(SystemColor::blue)}, {'a', light(SystemColor::accent)},
        {'l', line.pixelColor(4, 4)},    {'-', Qt::white}};
    while (words >> x >> y >> name) {
        const QPointF place = (rect.topLeft() + QPointF(x, y)) * scale;
        const std::string where = std::to_string(x) + ' ' + std::to_string(y);
        expectColor(image.pixelColor(place.toPoint()), colors.at(name), where.c_str());
    }
}

using Matrix = std::vector<ChartRow>;

TEST(ChartData, IsTakenAsItIs) {
    EXPECT_EQ(Chart(std::list{0.5f, -7.f}).configuration.dataMatrix, (Matrix{{0.5}, {-7}}));
    const std::vector<std::vector<float>> rows{{0.5f, 0.25f}, {}, {3}};
    EXPECT_EQ(Chart(rows).configuration.dataMatrix, (Matrix{{0.5, 0.25}, {}, {3}}));
    EXPECT_EQ(rowSums(Chart(rows).configuration), (std::vector{0.75, 0., 3.}));
}

TEST(TheDefaultStyle, IsOneThinSmoothAccentLine) {
    const Chart chart(std::vector{0., 1., 0.5});
    const LineChartStyle same{LineType::quadCurve, Color{SystemColor::accent}, 1};
    EXPECT_EQ(raster(chart, size, 2), raster(chartStyle(chart, same), size, 2));
    const LineChartStyle straight{LineType::line, same.lineColor, 1};
    EXPECT_NE(raster(chart, size, 2), raster(chartStyle(chart, straight), size, 2));
}

TEST(LineCharts, RunFromTheBottomAt0ToTheTopAt1AndEndRound) {
    const Chart chart(std::vector{0., 0., 1.});
    expectColors(drawn(chart, LineChartStyle{LineType::line, red, 10}),
                 "20 104 r  20 106 -  -4 100 r  -4 104 -  99 1 r");
    for (const double none : {0., -3., std::nan("")})
        expectColors(drawn(chart, LineChartStyle{LineType::line, red, none}), "20 100 -");
}

TEST(LineCharts, DrawTheTrimmedPartAsItIsWhenTheyAreDrawn) {
    double from = 0, to = 1;
    const auto bound = [](double& owned) {
        return Binding<double>{[&] { return owned; }, [&](double value) { owned = value; }};
    };
    const LineChartStyle style{LineType::line, red, 4, bound(from), bound(to)};
    const AnyView chart = chartStyle(Chart(std::vector{0.5, 0.5}), style);
    const auto paints = [&](int x) { return isPainted(raster(chart, size), {x, 65, 2, 10}); };
    EXPECT_TRUE(paints(5) && paints(50) && paints(115));
    from = 0.4;
    to = 0.7;
    EXPECT_TRUE(!paints(30) && paints(60) && !paints(100));
    from = to;
    EXPECT_FALSE(paints(70));
}

TEST(EveryStyle, BearsAnyDataWithoutPaintingBesideItsFrame) {
    const double nan = std::nan(""), infinity = std::numeric_limits<double>::infinity();
    for (const double hard : {0., -0., nan, infinity, -infinity, 2147483647., 1e308, -1e308}) {
        for (const Matrix& rows :
             {Matrix{{hard}, {hard, hard}, {}, {1}}, Matrix{{hard}}, Matrix()}) {
            const Chart chart(rows);
            for (const AnyView& styled :
                 {AnyView(chart), AnyView(chartStyle(chart, ColumnChartStyle{capsule, 2.})),
                  AnyView(chartStyle(chart, LineChartStyle{LineType::line, red, 1})),
                  AnyView(chartStyle(chart, AreaChartStyle{LineType::line, capsule})),
                  AnyView(chartStyle(chart, StackedAreaChartStyle{LineType::line, {red}}))}) {
                const QImage image = raster(styled, {140, 90}, {20, 20, 100, 50});
                EXPECT_FALSE(isPainted(image, {0, 0, 17, 90}) || isPainted(image, {123, 0, 17, 90}))
                    << hard;
            }
        }
    }
}

TEST(AxisLabels, ShareTheirAxisEvenly) {
    const Witness witness;
    raster(AxisLabels{Qt::Horizontal, {witness, witness, witness, witness}}, size, rect);
    EXPECT_EQ(witness.rects->at(1), QRectF(35, 20, 25, 100));
    raster(AxisLabels{Qt::Vertical, {witness, witness}}, size, rect);
    EXPECT_EQ(witness.rects->at(4), QRectF(10, 70, 100, 50));
}

TEST(Columns, AreCapsulesWithTheGradientsEndsAtTheirOwn) {
    // Four columns of 19 points, 8 apart.
    const QImage image = drawn(Chart(std::vector{1., 0.5, 0., 0.25}), ColumnChartStyle{capsule, 8});
    expectColors(image, "9.5 0.5 r  9.5 99.5 y  1 1 -  18 99 -  23 75 -  36.5 50.5 r  36.5 49 -  "
                        "36.5 99 y  63.5 99.5 -  90.5 75.5 r  90.5 73 -  90.5 99 y");
    const ColumnChartStyle ready{DefaultColumnView{}, 0};
    expectColors(drawn(Chart(std::vector{1.15}), ready), "50 -14 a  50 -16 -"); // not cut off
}

TEST(Columns, StandOnAGrayLineAndHangFromItWhenAnyIsNegative) {
    const QImage image = drawn(Chart(std::vector{1., -1., 0.5, 0.}), ColumnChartStyle{capsule, 8});
    expectColors(image,
                 "9.5 0.5 r  9.5 49 y  9.5 52 -  36.5 50.6 r  36.5 99.5 y  36.5 48 -  63.5 25.5 r  "
                 "63.5 24 -  23 50 l  99 50 l  23 48.9 -  23 51.1 -");
    expectColors(drawn(Chart(std::vector{1., 0., 0.}), ColumnChartStyle{capsule, 8}),
                 "60 50 -  90 99.9 -");
}

TEST(Columns, OfACrowdedYearAllShow) {
    // Every other one of 400 columns is empty, on a phone's screen of three pixels to a point.
    std::vector<double> values;
    for (int i = 0; i < 400; ++i)
        values.push_back(i % 2 == 0 ? 0.9 : 0);
    const AnyView chart = chartStyle(Chart(values), ColumnChartStyle{DefaultColumnView{}, 2});
    const QImage image = raster(chart, {350, 100}, 3);
    int edges = 0;
    for (int x = 1; x < image.width(); ++x) {
        const auto dark = [&](int at) { return image.pixelColor(at, 150).red() < 128; };
        edges += dark(x) != dark(x - 1);
    }
    EXPECT_NEAR(edges, 399, 1);
}

TEST(Areas, FillBelowTheirLine) {
    const auto style = [](LineType type) {
        return AreaChartStyle{type, FilledShape{Rectangle{}, red}};
    };
    const Chart chart(std::vector{0., 1.});
    expectColors(drawn(chart, style(LineType::line)), "50 52 r  50 48 -  25 80 r  25 70 -  99 2 r");
    expectColors(drawn(chart, style(LineType::quadCurve)),
                 "50 52 r  25 80 -  25 90 r  75 8 -  75 20 r");
    EXPECT_EQ((AreaChart{LineType::line, {}, std::nullopt}.path(rect).elementCount()), 0);
}

TEST(Areas, BetweenTwoLinesCloseFromEndToEnd) {
    const AreaChart band{LineType::line, {{0, 0.8}, {1, 0.8}}, {{{0, 0.2}, {1, 0.6}}}};
    const QPainterPath path = band.path({50, 50, 100, 100});
    const std::vector<QPointF> corners{{0, 20}, {100, 20}, {100, 40}, {0, 80}, {0, 20}};
    ASSERT_EQ(path.elementCount(), 5);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(QPointF(path.elementAt(i)), corners[static_cast<std::size_t>(i)]) << i;
    const AreaChart closed{LineType::line, band.unitPoints, std::vector<PlotPoint>{}};
    EXPECT_EQ(closed.path(rect).currentPosition(), QPointF(0, 20));
}

TEST(StackedAreas, StandOnEachOtherFromTheBottomAndRepeatTheirColors) {
    const std::vector<std::vector<double>> rows{{0.2, 0.3, 0.2}, {0.2, 0.3, 0.2}, {0.2}};
    expectColors(drawn(Chart(rows), StackedAreaChartStyle{LineType::line, {red, blue}}),
                 "25 90 r  25 65 b  25 40 r  25 25 -  99 90 r  99 70 -");
}

TEST(StackedColumns, StandOnEachOtherFromTheBottomAndRepeatTheirColors) {
    const std::vector<std::vector<double>> rows{{0.2, 0.3, -5, 0.3}, {0.4, std::nan("")}};
    const auto column = [](const ChartRow& row) {
        return AnyView(DefaultStackedColumnView{row, {red, blue}});
    };
    expectColors(
        drawn(Chart(rows), StackedColumnChartStyle{10, column, 0}),
        "20 90 r  20 65 b  20 40 b  20 21 b  20 19 -  0.5 21 b  50 90 -  80 90 r  80 61 r  "
        "80 59 -");
}

} // namespace
} // namespace kovamo
