#include "Gallery.h"

#include "SampleData.h"
#include "charts/AreaChartStyle.h"
#include "charts/AxisLabels.h"
#include "charts/BarChartStyle.h"
#include "charts/Chart.h"
#include "charts/ColumnChartStyle.h"
#include "charts/LineChartStyle.h"
#include "charts/StackedColumnChartStyle.h"
#include "charts/display/BarChartView.h"
#include "charts/display/LineChartViews.h"
#include "charts/display/PieChartView.h"
#include "platform/views/ShapeViews.h"
#include "platform/views/Text.h"
#include "shapes/GridPattern.h"
#include "shapes/HalfCapsule.h"
#include "shapes/Line.h"
#include "shapes/RegularPolygon.h"

namespace kovamo {

namespace {

using Values = Exhibit::Values;

const std::vector<Color> palette{
    {SystemColor::blue}, {SystemColor::green}, {SystemColor::yellow}, {SystemColor::red}};

FilledShape<Capsule, LinearGradient> capsule(SystemColor top) {
    return {Capsule{}, LinearGradient{{{top}, {SystemColor::yellow}}}};
}

template<Shape S>
AnyView stroked(S shape) {
    return StrokedShape{std::move(shape), Color{SystemColor::accent}, StrokeStyle{2}};
}

template<Shape S>
AnyView filled(S shape) {
    return FilledShape{std::move(shape),
                       LinearGradient{{{SystemColor::accent}, {SystemColor::purple}}}};
}

LineType lineType(double curved) {
    return curved > 0 ? LineType::quadCurve : LineType::line;
}

unsigned sides(double value) {
    return static_cast<unsigned>(value);
}

AnyView axisLabels(Qt::Orientation axis, double count) {
    AxisLabels labels{axis, {}};
    for (const QString& month : sampleMonths(count))
        labels.labels.emplace_back(Text{month, Color{SystemColor::secondaryLabel}});
    return labels;
}

// What several exhibits take, as name, from, to, step, first value.
constexpr ExhibitParameter::Range values{"values", 0, 60, 1, 12};
constexpr ExhibitParameter::Range crowdedValues{"values", 0, 1000, 1, 24};
constexpr ExhibitParameter::Range negatives{"negative values", 0, 60, 1, 0};
constexpr ExhibitParameter::Range parts{"parts", 1, 6, 1, 3};
constexpr ExhibitParameter::Range spacing{"spacing", 0, 12, 0.5, 2};
constexpr ExhibitParameter::Range lineWidth{"line width", 0, 12, 0.5, 2};
constexpr ExhibitParameter::Range curved{"curved", 0, 1, 1, 1};
constexpr ExhibitParameter::Range insetBy{"inset", 0, 120, 1, 0};
constexpr ExhibitParameter::Range sideCount{"sides", 0, 12, 1, 5};
constexpr ExhibitParameter::Range radius{"radius", 0, 120, 1, 20};

} // namespace

Gallery::Gallery(QObject* parent) : QObject(parent) {
    addShapes();
    addStyles();
    addDisplayCharts();
}

void Gallery::toggleAppearance() const {
    SystemColors& colors = SystemColors::shared();
    colors.setColorScheme(colors.isDark() ? ColorScheme::light : ColorScheme::dark);
}

void Gallery::addShapes() {
    add("Line", {values},
        [](const Values& v) { return stroked(Line{makeUnitPoints(sampleFractions(v[0]))}); });
    add("QuadCurve", {values},
        [](const Values& v) { return stroked(QuadCurve{makeUnitPoints(sampleFractions(v[0]))}); });
    add("GridPattern",
        {insetBy, {"horizontal lines", 0, 20, 1, 5}, {"vertical lines", 0, 20, 1, 8}},
        [](const Values& v) {
            return stroked(GridPattern{v[0], static_cast<int>(v[1]), static_cast<int>(v[2])});
        });
    add("HalfCapsule", {insetBy}, [](const Values& v) { return filled(HalfCapsule{v[0]}); });
    add("RegularPolygon", {sideCount, insetBy}, [](const Values& v) {
        return filled(RegularPolygon{sides(v[0]), v[1]});
    });
    add("RoundedRegularPolygon", {sideCount, radius, insetBy}, [](const Values& v) {
        return filled(RoundedRegularPolygon{sides(v[0]), v[1], v[2]});
    });
    add("RoundedRectangle", {radius, {"continuous", 0, 1, 1, 1}}, [](const Values& v) {
        return filled(RoundedRectangle{v[0], v[1] > 0});
    });
}

void Gallery::addStyles() {
    add("Chart in the default style", {values},
        [](const Values& v) -> AnyView { return Chart(sampleFractions(v[0])); });
    add("LineChartStyle",
        {values, curved, lineWidth, {"trim from", 0, 1, 0.01, 0}, {"trim to", 0, 1, 0.01, 1}},
        [](const Values& v) -> AnyView {
            const LineChartStyle style{lineType(v[1]), Color{SystemColor::purple}, v[2],
                                       Binding<double>::constant(v[3]),
                                       Binding<double>::constant(v[4])};
            return chartStyle(Chart(sampleFractions(v[0])), style);
        });
    add("AreaChartStyle", {values, curved}, [](const Values& v) -> AnyView {
        const FilledShape fill{Rectangle{},
                               LinearGradient{{{SystemColor::accent}, {SystemColor::accent, 0.1}}}};
        return chartStyle(Chart(sampleFractions(v[0])), AreaChartStyle{lineType(v[1]), fill});
    });
    add("StackedAreaChartStyle", {values, parts, curved}, [](const Values& v) -> AnyView {
        return chartStyle(Chart(sampleRows(v[0], v[1])),
                          StackedAreaChartStyle{lineType(v[2]), palette});
    });
    add("ColumnChartStyle", {crowdedValues, negatives, spacing}, [](const Values& v) -> AnyView {
        return chartStyle(Chart(sampleFractions(v[0], v[1])),
                          ColumnChartStyle{capsule(SystemColor::green), v[2]});
    });
    add("ColumnChartStyle of DefaultColumnView", {crowdedValues, negatives, spacing},
        [](const Values& v) -> AnyView {
            return chartStyle(Chart(sampleFractions(v[0], v[1])),
                              ColumnChartStyle{DefaultColumnView{}, v[2]});
        });
    add("BarChartStyle", {values, negatives, spacing}, [](const Values& v) -> AnyView {
        return chartStyle(Chart(sampleFractions(v[0], v[1])),
                          BarChartStyle{FilledShape{RoundedRectangle{4}, palette[0]}, v[2]});
    });
    add("StackedColumnChartStyle", {values, parts, spacing, radius},
        [](const Values& v) -> AnyView {
            const auto column = [](const ChartRow& row) -> AnyView {
                return DefaultStackedColumnView{row, palette};
            };
            return chartStyle(Chart(sampleRows(v[0], v[1])),
                              StackedColumnChartStyle{v[2], column, v[3] / 4});
        });
    add("AxisLabels, horizontal", {{"labels", 0, 12, 1, 6}},
        [](const Values& v) { return axisLabels(Qt::Horizontal, v[0]); });
    add("AxisLabels, vertical", {{"labels", 0, 12, 1, 6}},
        [](const Values& v) { return axisLabels(Qt::Vertical, v[0]); });
}

void Gallery::addDisplayCharts() {
    add("LineChartView", {values, negatives, curved, lineWidth},
        [](const Values& v) -> AnyDisplayChart {
            return LineChartView{QStringLiteral("Balance of the Year"),
                                 sampleSeries("Balance", SystemColor::blue, v[0], v[1]),
                                 sampleMonths(v[0]), lineType(v[2]), v[3]};
        });
    add("MultiLineChartView", {values, curved, lineWidth}, [](const Values& v) -> AnyDisplayChart {
        return MultiLineChartView{QStringLiteral("In and Out"),
                                  {sampleSeries("Earnings", SystemColor::green, v[0]),
                                   sampleSeries("Spendings", SystemColor::red, v[0], 0, 1),
                                   sampleSeries("Savings", SystemColor::blue, v[0], 0, 2)},
                                  sampleMonths(v[0]),
                                  lineType(v[1]),
                                  v[2]};
    });
    add("BarChartView", {{"values", 0, 24, 1, 6}, negatives, spacing},
        [](const Values& v) -> AnyDisplayChart {
            return BarChartView{QStringLiteral("Balance by Month"),
                                sampleSeries("Balance", SystemColor::purple, v[0], v[1]),
                                sampleMonths(v[0]), v[2]};
        });
    add("PieChartView", {{"slices", 0, 12, 1, 4}}, [](const Values& v) -> AnyDisplayChart {
        PieChartView chart{QStringLiteral("Spendings by Month"), {}};
        const ChartSeries series = sampleSeries("", SystemColor::red, v[0]);
        const std::vector<QString> months = sampleMonths(v[0]);
        for (std::size_t i = 0; i < months.size(); ++i)
            chart.slices.push_back({months[i], series.values[i], palette[i % palette.size()]});
        return chart;
    });
}

} // namespace kovamo
