#include "charts/display/BarChartView.h"
#include "charts/display/LineChartViews.h"
#include "charts/display/Magnifier.h"
#include "charts/display/PieChartView.h"
#include "platform/views/Raster.h"
#include "platform/views/ShapeViews.h"
#include "platform/views/ViewModifiers.h"

#include <QLocale>
#include <limits>

namespace kovamo {
namespace {

const Color red{SystemColor::red}, green{SystemColor::green}, blue{SystemColor::blue};
const double nan = std::nan(""), infinity = std::numeric_limits<double>::infinity();
const QSize size(200, 120);

std::vector<QString> words(std::initializer_list<const char*> texts) {
    return {texts.begin(), texts.end()};
}

std::string read(const auto& chart, QPointF place) {
    const auto reading = chart.reading(place, size);
    return reading ? reading->text.toStdString() : "nothing";
}

// Readings are told in one locale's numbers.
const bool english = (QLocale::setDefault(QLocale(QLocale::English)), true);

/// The colour that a chart paints where it says its reading for `place` stands.
QColor colorAtReading(const auto& chart, QPointF place, QPointF nudge = {}) {
    const QPointF point = chart.reading(place, size).value().position + nudge;
    return raster(chart.plot(), size, 4).pixelColor((point * 4).toPoint());
}

TEST(PlotScales, BringAnyValuesIntoTheUnitRange) {
    const auto fractions = [](const std::vector<double>& values) {
        PlotScale scale;
        scale.include(values);
        return scale.fractions(values);
    };
    EXPECT_EQ(fractions({-10, 30}), (std::vector{0., 1.}));
    EXPECT_EQ(fractions({2147483647, 1}), (std::vector{1., 1 / 2147483647.}));
    const double huge = std::numeric_limits<double>::max();
    EXPECT_EQ(fractions({huge, -huge, infinity}), (std::vector{1., 0., infinity}));
}

TEST(LineCharts, ReadOutTheNearestValueWhereItIsDrawn) {
    const LineChartView chart{QStringLiteral("Year"),
                              {QStringLiteral("Balance"), {1000, nan, -500, 1234.5}, red},
                              words({"Jan", "Feb", "Mar", "Apr"}),
                              LineType::line,
                              4};
    EXPECT_EQ(read(chart, {0, 0}), "Jan, 1,000");
    EXPECT_EQ(read(chart, {120, 0}), "Mar, -500") << "the gap's neighbour";
    EXPECT_EQ(read(chart, {199, 60}), "Apr, 1,234.5");
    for (const double x : {10., 120., 199.})
        expectColor(colorAtReading(chart, {x, 60}), light(SystemColor::red), "the line");
    LineChartView bare = chart;
    bare.labels.clear();
    EXPECT_EQ(read(bare, {0, 0}), "Balance, 1,000");
    expectColor(colorAtReading(bare, {199, 60}), light(SystemColor::red), "without labels");
    bare.series.values = {nan, infinity};
    EXPECT_EQ(read(bare, {10, 10}), "nothing");
}

TEST(MultiLineCharts, ReadOutTheNearerOfTheirSeries) {
    const MultiLineChartView chart{
        {},
        {{QStringLiteral("In"), {0, 100, 100}, green}, {QStringLiteral("Out"), {0, 20}, red}},
        words({"Jan", "Feb", "Mar"}),
        LineType::line,
        4};
    EXPECT_EQ(read(chart, {100, 10}), "In Feb, 100");
    EXPECT_EQ(read(chart, {100, 85}), "Out Feb, 20");
    EXPECT_EQ(read(chart, {190, 110}), "In Mar, 100") << "the shorter series ends before";
    expectColor(colorAtReading(chart, {100, 10}), light(SystemColor::green), "one scale for both");
    expectColor(colorAtReading(chart, {100, 85}), light(SystemColor::red), "one scale for both");
    const LegendEntry entry = chart.legend().at(1);
    EXPECT_EQ(entry.label, QStringLiteral("Out"));
    expectColor(raster(entry.swatch(), {10, 10}).pixelColor(5, 5), light(SystemColor::red));
}

TEST(BarCharts, ReadOutTheBarBesideTheFinger) {
    BarChartView chart{{}, {QStringLiteral("Balance"), {50, 100}, blue}, words({"Jan", "Feb"}), 4};
    EXPECT_EQ(read(chart, {0, 10}), "Jan, 50");
    EXPECT_EQ(read(chart, {0, 500}), "Feb, 100");
    expectColor(colorAtReading(chart, {0, 10}, {-1, 0}), light(SystemColor::blue), "inside");
    expectColor(colorAtReading(chart, {0, 10}, {1, 0}), Qt::white, "past the end");
    chart.series.values = {50, -100, nan};
    EXPECT_EQ(read(chart, {0, 60}), "Feb, -100");
    expectColor(colorAtReading(chart, {0, 60}, {1, 0}), light(SystemColor::blue), "inside");
    expectColor(colorAtReading(chart, {0, 60}, {-1, 0}), Qt::white, "past the end");
    EXPECT_EQ(read(chart, {0, 110}), "nothing");
}

TEST(PieCharts, GiveEachSliceItsShareFromTheTopClockwise) {
    const PieChartView chart{{},
                             {{QStringLiteral("Half"), 50, red},
                              {QStringLiteral("None"), -20, blue},
                              {QStringLiteral("Unknown"), nan, blue},
                              {QStringLiteral("Quarter"), 25, green},
                              {QStringLiteral("Rest"), 25, blue}}};
    EXPECT_EQ(read(chart, {150, 60}), "Half, 50");
    EXPECT_EQ(read(chart, {95, 110}), "Quarter, 25");
    EXPECT_EQ(read(chart, {60, 20}), "Rest, 25");
    expectColor(colorAtReading(chart, {150, 60}), light(SystemColor::red));
    expectColor(colorAtReading(chart, {60, 20}), light(SystemColor::blue));
}

TEST(Magnifiers, EnlargeThePlotAroundTheirFocus) {
    // A plot of two halves, the border at x = 100.
    const AnyView plot = ZStack{{FilledShape{Rectangle{}, red},
                                 PaddedView{FilledShape{Rectangle{}, green}, {100, 0, 0, 0}}}};
    const QImage lens = raster(Magnifier{plot, size, {90, 60}, blue}, {80, 80});
    expectColor(lens.pixelColor(40, 40), light(SystemColor::blue), "the focus");
    expectColor(lens.pixelColor(63, 40), light(SystemColor::green), "past the border");
}

} // namespace
} // namespace kovamo
