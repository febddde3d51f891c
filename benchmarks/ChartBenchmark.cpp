// What a column chart costs to paint into a raster of a phone's width. The last figures relate it
// to as many plain rectangles and to one frame of a display of 60 Hz.

#include "charts/Chart.h"
#include "charts/ColumnChartStyle.h"
#include "platform/views/ShapeViews.h"

#include <QGuiApplication>
#include <QImage>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <random>

using namespace kovamo;

namespace {

constexpr int everyColumn = 10'000;

std::vector<double> fractions(int count) {
    std::minstd_rand generator(7);
    std::uniform_real_distribution<double> fraction(0.05, 1);
    std::vector<double> values;
    for (int i = 0; i < count; ++i)
        values.push_back(fraction(generator));
    return values;
}

QImage raster(int devicePixelRatio) {
    QImage image(390 * devicePixelRatio, 200 * devicePixelRatio,
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::transparent);
    return image;
}

const QRectF area(0, 0, 390, 200);

const FilledShape capsule{Capsule{},
                          LinearGradient{{Color{SystemColor::green}, Color{SystemColor::yellow}}}};

void paintColumns(QImage& image, const AnyView& chart) {
    QPainter painter(&image);
    chart.paint(painter, area, {});
}

void paintRectangles(QImage& image, const std::vector<double>& values) {
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    double x = 0;
    for (const double value : values) {
        const double height = 200 * value;
        painter.fillRect(QRectF(x, 200 - height, 1, height), Qt::darkGreen);
        x += 390. / static_cast<double>(values.size());
    }
}

void columns(benchmark::State& state) {
    QImage image = raster(static_cast<int>(state.range(1)));
    const AnyView chart = chartStyle(Chart(fractions(static_cast<int>(state.range(0)))),
                                     ColumnChartStyle{capsule, 2});
    for (auto _ : state)
        paintColumns(image, chart);
}

void rectangles(benchmark::State& state) {
    QImage image = raster(static_cast<int>(state.range(1)));
    const auto values = fractions(static_cast<int>(state.range(0)));
    for (auto _ : state)
        paintRectangles(image, values);
}

template<class Work>
double medianMilliseconds(const Work& work) {
    std::vector<double> times;
    for (int i = 0; i < 31; ++i) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - start;
        times.push_back(time.count());
    }
    std::ranges::nth_element(times, times.begin() + 15);
    return times[15];
}

void printRatios() {
    for (const int ratio : {1, 3}) {
        QImage image = raster(ratio);
        const auto values = fractions(everyColumn);
        const AnyView chart = chartStyle(Chart(values), ColumnChartStyle{capsule, 2});
        const double own = medianMilliseconds([&] { paintColumns(image, chart); });
        const double plain = medianMilliseconds([&] { paintRectangles(image, values); });
        std::printf("%d columns at ratio %d: %.2f ms, %.2f of %d plain rectangles, %.2f of a frame "
                    "of 16.7 ms\n",
                    everyColumn, ratio, own, own / plain, everyColumn, own / 16.7);
    }
}

} // namespace

BENCHMARK(columns)
    ->ArgsProduct({{12, 100, 400, 1000, everyColumn}, {1, 3}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(rectangles)->ArgsProduct({{everyColumn}, {1, 3}})->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    printRatios();
}
