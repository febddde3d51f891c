#include "charts/Chart.h"

#include "charts/AxisLabels.h"
#include "charts/ColumnChartStyle.h"
#include "charts/LineChartStyle.h"
#include "platform/views/Raster.h"
#include "platform/views/ShapeViews.h"

#include <array>
#include <list>

namespace kovamo {
namespace {

const QSize size(100, 50);

/// Somebody else's style: it fills everything with its colour.
struct FloodStyle {
    SystemColor color;

    [[nodiscard]] auto makeBody(const ChartStyleConfiguration&) const {
        return FilledShape{Rectangle{}, Color{color}};
    }
};

struct MakesNoView {
    [[nodiscard]] int makeBody(const ChartStyleConfiguration&) const { return 0; }
};
template<class T>
constexpr bool isAccepted = std::constructible_from<AnyChartStyle, T>;
static_assert(isAccepted<FloodStyle> && isAccepted<LineChartStyle> && ChartStyle<AnyChartStyle>);
static_assert(!isAccepted<int> && !isAccepted<MakesNoView> && !isAccepted<AnyView>);
static_assert(!std::constructible_from<Chart, std::vector<int>>, "only floating-point values");

using Matrix = std::vector<ChartRow>;

TEST(ChartData, IsTakenAsItIs) {
    EXPECT_EQ(Chart(std::list{0.1f, -7.f}).configuration.dataMatrix,
              (Matrix{{static_cast<double>(0.1f)}, {-7}}));
    const std::vector<std::vector<float>> rows{{0.5f, 0.25f}, {}, {3}};
    EXPECT_EQ(Chart(rows).configuration.dataMatrix, (Matrix{{0.5, 0.25}, {}, {3}}));
    EXPECT_EQ(rowSums(Chart(rows).configuration), (std::vector{0.75, 0., 3.}));
}

TEST(ChartStyles, ComeFromTheEnvironmentTheInnermostOneWinning) {
    const Chart chart(std::vector{1.});
    const FloodStyle outer{SystemColor::red}, inner{SystemColor::green};
    const AnyView views = chartStyle(
        ZStack{{chart, PaddedView{chartStyle(chart, inner), QMarginsF(50, 0, 0, 0)}}}, outer);
    const QImage image = raster(views, size);
    expectColor(image.pixelColor(20, 20), light(SystemColor::red), "the outer style");
    expectColor(image.pixelColor(80, 20), light(SystemColor::green), "the inner style");
    const AnyChartStyle erased(outer), copy = erased;
    EXPECT_EQ(copy.styleMakeBody, erased.styleMakeBody) << "one callable holds the style";
}

TEST(TheDefaultStyle, IsOneThinSmoothAccentLine) {
    const Chart chart(std::vector{0., 1., 0.5});
    EXPECT_EQ(chart.style.value().styleMakeBody, ChartStyleKey::defaultValue().styleMakeBody);
    const LineChartStyle same{LineType::quadCurve, Color{SystemColor::accent}, 1};
    EXPECT_EQ(raster(chart, size, 2), raster(chartStyle(chart, same), size, 2));
    const LineChartStyle straight{LineType::line, same.lineColor, 1};
    EXPECT_NE(raster(chart, size, 2), raster(chartStyle(chart, straight), size, 2));
}

TEST(LineCharts, RunFromTheBottomAt0ToTheTopAt1AndEndRound) {
    const auto pixel = [](double width, QPoint place) {
        const LineChartStyle style{LineType::line, Color{SystemColor::red}, width};
        const AnyView chart = chartStyle(Chart(std::vector{0., 0., 1.}), style);
        return raster(chart, {140, 90}, {20, 20, 100, 50}, 4).pixelColor(place * 4);
    };
    const QColor red = light(SystemColor::red);
    expectColor(pixel(10, {40, 74}), red, "inside the width");
    expectColor(pixel(10, {40, 76}), Qt::white, "below it");
    expectColor(pixel(10, {16, 70}), red, "the round end");
    expectColor(pixel(10, {16, 74}), Qt::white, "the end's corner");
    expectColor(pixel(10, {119, 21}), red, "the last value");
    for (const double none : {0., -3., std::nan("")})
        expectColor(pixel(none, {40, 70}), Qt::white, "without width");
}

TEST(LineCharts, DrawTheTrimmedPartAsItIsWhenTheyAreDrawn) {
    auto from = std::make_shared<double>(0.), to = std::make_shared<double>(1.);
    const auto bound = [](const std::shared_ptr<double>& owned) {
        return Binding<double>{[owned] { return *owned; }, [owned](double v) { *owned = v; }};
    };
    const LineChartStyle style{LineType::line, Color{SystemColor::red}, 4, bound(from), bound(to)};
    const AnyView chart = chartStyle(Chart(std::vector{0.5, 0.5}), style);
    const auto drawn = [&](int x) { return isPainted(raster(chart, size), {x, 20, 2, 10}); };
    EXPECT_TRUE(drawn(5) && drawn(50) && drawn(95));
    style.trimFrom.set(0.4);
    style.trimTo.set(0.7);
    EXPECT_EQ(*to, 0.7);
    EXPECT_TRUE(!drawn(30) && drawn(50) && !drawn(80));
    *from = *to;
    EXPECT_FALSE(drawn(70));
}

TEST(EveryStyle, BearsAnyDataWithoutPaintingBesideItsFrame) {
    const double nan = std::nan(""), infinity = std::numeric_limits<double>::infinity();
    const Color red{SystemColor::red};
    const FilledShape fill{Capsule{}, LinearGradient{{red, {SystemColor::yellow}}}};
    for (const double hard : {0., -0., nan, infinity, -infinity, 2147483647., 1e308, -1e308}) {
        for (const Matrix& rows :
             {Matrix{{hard}, {hard, hard}, {}, {1}}, Matrix{{hard}}, Matrix{}}) {
            for (const AnyChartStyle& style :
                 {ChartStyleKey::defaultValue(), AnyChartStyle(ColumnChartStyle{fill, 2.}),
                  AnyChartStyle(LineChartStyle{LineType::line, red, 1})}) {
                const AnyView chart = chartStyle(Chart(rows), style);
                const QImage image = raster(chart, {140, 90}, {20, 20, 100, 50});
                EXPECT_FALSE(isPainted(image, {0, 0, 17, 90}) || isPainted(image, {123, 0, 17, 90}))
                    << hard;
            }
        }
    }
}

TEST(AxisLabels, ShareTheirAxisEvenly) {
    const Witness witness;
    const QRectF rect(10, 20, 90, 60);
    raster(AxisLabels{Qt::Horizontal, {witness, witness, witness}}, size, rect);
    EXPECT_EQ(witness.rects->at(1), QRectF(40, 20, 30, 60));
    raster(AxisLabels{Qt::Vertical, {witness, witness}}, size, rect);
    EXPECT_EQ(witness.rects->at(3), QRectF(10, 50, 90, 30));
}

} // namespace
} // namespace kovamo
