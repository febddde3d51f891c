#include "charts/display/BarChartView.h"
#include "charts/display/LineChartViews.h"
#include "charts/display/PieChartView.h"
#include "platform/views/Raster.h"

#include <QLocale>
#include <limits>

namespace kovamo {
namespace {

const Color red{SystemColor::red}, green{SystemColor::green}, blue{SystemColor::blue};
const double nan = std::nan(""), infinity = std::numeric_limits<double>::infinity();
const QSize size(200, 120);

// Readings are told in one locale's numbers.
const bool english = (QLocale::setDefault(QLocale(QLocale::English)), true);

std::string read(const auto& chart, QPointF place) {
    const auto reading = chart.reading(place, size);
    return reading ? reading->text.toStdString() : "nothing";
}

/// All that a chart reads out, in the order in which the keys lead to it.
std::vector<std::string> readAll(const auto& chart) {
    const AnyDisplayChart any(chart);
    std::vector<std::string> texts;
    for (int i = 0; i < any.count(); ++i)
        texts.push_back(any.magnifiedAt(i, size).text.toStdString());
    EXPECT_TRUE(any.magnifiedAt(-1, size).text.isEmpty());
    EXPECT_TRUE(any.magnifiedAt(any.count(), size).text.isEmpty());
    return texts;
}

/// The colour that a chart paints where it says its reading for `place` stands.
QColor colorAtReading(const auto& chart, QPointF place, QPointF nudge = {}) {
    const QPointF point = chart.reading(place, size).value().position + nudge;
    return raster(chart.plot(), size, 4).pixelColor((point * 4).toPoint());
}

/// Fails unless the chart reads out `text` for a place and has the reading's colour where it
/// stands.
void expectReading(const auto& chart, QPointF place, const char* text, SystemColor color) {
    EXPECT_EQ(read(chart, place), text);
    expectColor(colorAtReading(chart, place), light(color), text);
}

TEST(PlotScales, BringAnyValuesIntoTheUnitRange) {
    const double huge = std::numeric_limits<double>::max();
    const std::vector values{huge, -huge, infinity, 0.};
    PlotScale scale;
    scale.include(values);
    EXPECT_EQ(scale.fractions(values), (std::vector{1., 0., infinity, 0.5}));
}

TEST(LineCharts, ReadOutTheNearestValueWhereItIsDrawn) {
    const std::vector<QString> months{"Jan", "Feb", "Mar", "Apr"};
    const ChartSeries series{"Balance", {1000, nan, -500, 1234.5}, red};
    const LineChartView chart{{}, series, months, LineType::line, 4};
    expectReading(chart, {0, 0}, "Jan, 1,000", SystemColor::red);
    expectReading(chart, {120, 0}, "Mar, -500", SystemColor::red);
    expectReading(chart, {199, 60}, "Apr, 1,234.5", SystemColor::red);
    LineChartView bare{{}, series, {}, LineType::line, 4};
    expectReading(bare, {0, 0}, "Balance, 1,000", SystemColor::red);
    bare.series.values = {nan, infinity};
    EXPECT_EQ(read(bare, {10, 10}), "nothing");
    for (const std::vector<double>& lone : {std::vector{5.}, {nan, -5., nan}}) {
        bare.series.values = lone;
        expectReading(bare, {0, 0}, lone.size() == 1 ? "Balance, 5" : "Balance, -5",
                      SystemColor::red);
    }
}

TEST(MultiLineCharts, ReadOutTheNearerOfTheirSeries) {
    const ChartSeries in{"In", {0, 100, 100}, green};
    const ChartSeries out{"Out", {0, 20}, red};
    const std::vector<QString> months{"Jan", "Feb", "Mar"};
    const MultiLineChartView chart{{}, {in, out}, months, LineType::line, 4};
    expectReading(chart, {100, 10}, "In Feb, 100", SystemColor::green);
    expectReading(chart, {100, 85}, "Out Feb, 20", SystemColor::red);
    expectReading(chart, {190, 110}, "In Mar, 100", SystemColor::green);
    EXPECT_EQ(readAll(chart), (std::vector<std::string>{"In Jan, 0", "Out Jan, 0", "In Feb, 100",
                                                        "Out Feb, 20", "In Mar, 100"}));
}

TEST(BarCharts, ReadOutTheBarBesideTheFinger) {
    const BarChartView chart{{}, {"Balance", {50, 100}, blue}, {"Jan", "Feb"}, 4};
    EXPECT_EQ(read(chart, {0, 10}), "Jan, 50");
    EXPECT_EQ(read(chart, {0, 500}), "Feb, 100");
    EXPECT_EQ(readAll(chart), (std::vector<std::string>{"Jan, 50", "Feb, 100"}));
    expectColor(colorAtReading(chart, {0, 10}, {-1, 0}), light(SystemColor::blue), "inside");
    expectColor(colorAtReading(chart, {0, 10}, {1, 0}), Qt::white, "past the end");
}

TEST(PieCharts, GiveEachSliceItsShareFromTheTopClockwise) {
    const PieChartView chart{{},
                             {{"Half", 50, red},
                              {"None", -20, blue},
                              {"Unknown", nan, blue},
                              {"Quarter", 25, green},
                              {"Rest", 25, blue}}};
    expectReading(chart, {150, 60}, "Half, 50", SystemColor::red);
    expectReading(chart, {95, 110}, "Quarter, 25", SystemColor::green);
    expectReading(chart, {60, 20}, "Rest, 25", SystemColor::blue);
    EXPECT_EQ(readAll(chart), (std::vector<std::string>{"Half, 50", "Quarter, 25", "Rest, 25"}));
}

} // namespace
} // namespace kovamo
