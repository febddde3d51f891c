#include "charts/ColumnLayout.h"

#include "charts/BarChartStyle.h"
#include "charts/Chart.h"
#include "platform/views/Raster.h"

#include <cmath>
#include <limits>
#include <random>

namespace kovamo {
namespace {

const QRectF bounds(10, 20, 100, 50);

std::vector<ColumnData> columns(const std::vector<double>& values) {
    return columnData(Chart(values).configuration);
}

TEST(ColumnFrames, FollowTheirValues) {
    const double nan = std::nan(""), infinity = std::numeric_limits<double>::infinity();
    // Values, and each column's top and height in bounds from 20 to 70.
    using Frames = std::vector<std::pair<double, double>>;
    const std::tuple<const char*, std::vector<double>, Frames> cases[] = {
        {"nothing", {}, {}},
        {"one-sided", {1, 0.5, 0}, {{20, 50}, {45, 25}, {70, 0}}},
        {"two-sided", {1, -1, -0.5, 0}, {{20, 25}, {45, 25}, {45, 12.5}, {45, 0}}},
        {"not a number", {nan, 1}, {{70, 0}, {20, 50}}},
        {"infinite", {infinity, 1}, {{70, 0}, {20, 50}}},
        {"infinitely negative", {-infinity, 1}, {{45, 0}, {20, 25}}},
        {"negative zero", {-0.0, 1}, {{70, 0}, {20, 50}}},
        {"far apart", {2147483647, 1}, {{70 - 50. * 2147483647, 50. * 2147483647}, {20, 50}}},
    };
    for (const auto& [what, values, expected] : cases) {
        const auto frames = columnFrames(columns(values), 2, bounds);
        ASSERT_EQ(frames.size(), expected.size()) << what;
        for (std::size_t i = 0; i < frames.size(); ++i) {
            EXPECT_DOUBLE_EQ(frames[i].y(), expected[i].first) << what << i;
            EXPECT_DOUBLE_EQ(frames[i].height(), expected[i].second) << what << i;
        }
    }
}

TEST(ColumnFrames, WithTheirGapsSpanExactlyTheWidth) {
    for (std::size_t count = 1; count <= 10'000; count = count * 3 / 2 + 1) {
        for (const double spacing : {0., 2., 7.5, 400.}) {
            const auto frames =
                columnFrames(columns(std::vector(count, 0.5)), spacing, {-30, 0, 350, 200});
            const double n = static_cast<double>(count);
            const double gap = spacing * (n - 1) < 350 ? spacing : 0;
            const double width = (350 - gap * (n - 1)) / n;
            EXPECT_NEAR(frames.back().right(), 320, 1e-6) << count << ' ' << spacing;
            double left = -30;
            for (const QRectF& frame : frames) {
                ASSERT_NEAR(frame.width(), width, 1e-9) << count << ' ' << spacing;
                ASSERT_NEAR(frame.left(), left, 1e-6) << count << ' ' << spacing;
                left = frame.right() + gap;
            }
        }
    }
}

TEST(ColumnAt, IsTheColumnWhoseFrameHoldsOrIsNearestToThePlace) {
    for (const std::size_t count : {1U, 2U, 15U, 120U, 400U}) {
        const auto frames = columnFrames(columns(std::vector(count, 1.)), 2, {0, 0, 350, 200});
        for (double x = 0; x <= 350; x += 0.37) {
            const auto distance = [x](const QRectF& frame) {
                return std::max({0., frame.left() - x, x - frame.right()});
            };
            const double nearest = distance(*std::ranges::min_element(frames, {}, distance));
            const auto found = columnAt(x, count, 2, 350);
            ASSERT_TRUE(found) << x;
            EXPECT_NEAR(distance(frames[*found]), nearest, 1e-6) << x << " of " << count;
        }
    }
    for (const double outside : {-0.1, 350.1, std::nan("")})
        EXPECT_FALSE(columnAt(outside, 5, 2, 350)) << outside;
    EXPECT_FALSE(columnAt(10, 0, 2, 350) || columnAt(0, 5, 2, 0));
}

TEST(VisibleFrames, OfACrowdKeepEveryPeakAtABoundedCost) {
    std::minstd_rand random(5);
    std::uniform_real_distribution<double> fraction(-1, 1);
    std::vector<double> values(10'000);
    std::ranges::generate(values, [&] { return fraction(random); });
    values[5'000] = 3;
    values[7'777] = -4;
    const auto all = columnFrames(columns(values), 2, bounds);
    const auto visible = visibleColumnFrames(columns(values), 2, bounds, 0.5);
    EXPECT_LE(visible.size(), 402U);
    for (const QRectF& frame : all) {
        const bool covered = std::ranges::any_of(visible, [&](const QRectF& shown) {
            return shown.left() <= frame.center().x() + 1e-9 &&
                   frame.center().x() <= shown.right() + 1e-9 && shown.top() <= frame.top() &&
                   frame.bottom() <= shown.bottom();
        });
        ASSERT_TRUE(covered) << frame.x();
    }
    const auto thin = visibleColumnFrames(columns(std::vector(170, 0.5)), 2, {20, 20, 350, 200}, 1);
    EXPECT_EQ(thin.size(), 170U);
    EXPECT_EQ(std::ranges::min(thin, {}, &QRectF::width).width(), 0.5);
    EXPECT_TRUE(visibleColumnFrames(columns(values), 2, {0, 0, -10, 50}, 1).empty());
}

TEST(Bars, AreColumnsLaidOnTheirSide) {
    const auto frames = [](const std::vector<double>& values) {
        const Witness witness;
        raster(chartStyle(Chart(values), BarChartStyle{witness, 10.}), {200, 200}, bounds);
        return *witness.rects;
    };
    EXPECT_EQ(frames({1, 0.5, 0}), (std::vector<QRectF>{{10, 20, 100, 10}, {10, 40, 50, 10}}));
    EXPECT_EQ(frames({1, -0.5}), (std::vector<QRectF>{{60, 20, 50, 20}, {35, 50, 25, 20}}));
}

} // namespace
} // namespace kovamo
