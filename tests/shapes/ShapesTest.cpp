#include "shapes/GridPattern.h"
#include "shapes/HalfCapsule.h"
#include "shapes/Line.h"
#include "shapes/RegularPolygon.h"

#include <QLineF>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace kovamo {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const double nan = std::nan("");

/// Rectangles of several sizes; those with a second place must give the same path as at (0, 0).
const std::array rects{QRectF(0, 0, 100, 50), QRectF(30, -70, 100, 50), QRectF(0, 0, 1, 200)};

void expectNear(QPointF actual, QPointF expected, const std::string& where = {}) {
    EXPECT_NEAR(actual.x(), expected.x(), 1e-9) << where;
    EXPECT_NEAR(actual.y(), expected.y(), 1e-9) << where;
}

/// The straight pieces of a path, in order.
std::vector<QLineF> segments(const QPainterPath& path) {
    std::vector<QLineF> found;
    for (int i = 1; i < path.elementCount(); ++i)
        if (path.elementAt(i).isLineTo())
            found.emplace_back(path.elementAt(i - 1), path.elementAt(i));
    return found;
}

TEST(UnitPoints, SpreadValuesEvenlyAndLeaveTheirHeights) {
    EXPECT_TRUE(makeUnitPoints(std::vector<double>{}).empty());
    EXPECT_EQ(makeUnitPoints(std::vector{0.7}), (std::vector<PlotPoint>{{0, 0.7}}));
    EXPECT_EQ(makeUnitPoints(std::array{2.5f, -1.f, 0.1f}),
              (std::vector<PlotPoint>{{0, 2.5}, {0.5, -1}, {1, static_cast<double>(0.1f)}}));
}

TEST(LinesAndCurves, OfOnePointAreASingleMoveAndLeaveOutPointsWithoutAPlace) {
    const std::vector<PlotPoint> gaps{{0, nan}, {0.2, 0.4}, {0.4, infinity}, {1, -infinity}};
    for (const QPainterPath& path : {Line{gaps}.path(rects[0]), QuadCurve{gaps}.path(rects[0])}) {
        ASSERT_EQ(path.elementCount(), 1);
        EXPECT_TRUE(path.elementAt(0).isMoveTo());
        expectNear(path.elementAt(0), {20, 30});
    }
    EXPECT_EQ(Line{}.path(rects[0]).elementCount(), 0);
    EXPECT_EQ(QuadCurve{}.path(rects[0]).elementCount(), 0);
}

TEST(Curves, PassLevelThroughEveryPointAndTurnHalfway) {
    const QuadCurve curve{{{0, 0.5}, {0.4, 0.9}, {0.5, -0.3}, {1, -0.3}}};
    for (const QRectF& rect : rects) {
        const QPainterPath path = curve.path(rect);
        // A move, and two curves of three elements for each further point.
        ASSERT_EQ(path.elementCount(), 1 + 6 * 3);
        for (int i = 0; i + 1 < 4; ++i) {
            const auto at = static_cast<std::size_t>(i);
            const QPointF p1 = mapUnitPoint(curve.unitPoints[at], rect);
            const QPointF p2 = mapUnitPoint(curve.unitPoints[at + 1], rect);
            const int first = 6 * i;
            expectNear(path.elementAt(first + 3), (p1 + p2) / 2, "halfway");
            expectNear(path.elementAt(first + 6), p2, "the point");
            // The control point lies halfway to the middle, at the first point's height.
            expectNear(path.elementAt(first + 1), {p1.x() + (p2.x() - p1.x()) / 6, p1.y()});
            EXPECT_NEAR(path.elementAt(first + 5).y, p2.y(), 1e-9) << "arrives level";
        }
    }
}

TEST(Grids, HaveTheirOuterLinesOnTheEdgesOfTheInsetBox) {
    const std::pair<GridPattern, std::vector<QLineF>> cases[] = {
        {{0, 1, 1}, {}},
        {{0, -4, 0}, {}},
        {{5, 2, 0}, {{5, 45, 95, 45}, {5, 5, 95, 5}}},
        {{0, 3, 1}, {{0, 50, 100, 50}, {0, 25, 100, 25}, {0, 0, 100, 0}}},
        {{10, 1, 3}, {{10, 40, 10, 10}, {50, 40, 50, 10}, {90, 40, 90, 10}}},
        {inset(inset(GridPattern{21, 2, 2}, 3), 2), {}}};
    for (const auto& [grid, lines] : cases) {
        EXPECT_EQ(segments(grid.path(rects[0])), lines) << grid.inset;
        EXPECT_EQ(segments(grid.path(rects[1])), lines) << grid.inset;
    }
}

TEST(HalfCapsules, AreRoundOnTheLeftAndSquareOnTheRight) {
    const std::tuple<QRectF, double, QRectF> cases[] = {{{40, 40, 100, 50}, 0, {0, 0, 100, 50}},
                                                        {{0, 0, 20, 90}, 4, {4, 4, 12, 82}}};
    for (const auto& [rect, by, box] : cases) {
        const QPainterPath path = HalfCapsule{by}.path(rect);
        const double radius = std::min(box.width(), box.height()) / 2;
        EXPECT_EQ(path.boundingRect(), box);
        expectNear(path.elementAt(0), box.topRight());
        expectNear(path.currentPosition(), box.bottomRight());
        const QPointF diagonal(-radius / std::sqrt(2), -radius / std::sqrt(2));
        const QPointF centre = box.topLeft() + QPointF(radius, radius);
        EXPECT_TRUE(path.contains(centre + 0.99 * diagonal));
        EXPECT_FALSE(path.contains(centre + 1.01 * diagonal));
    }
    EXPECT_TRUE(HalfCapsule{25}.path({0, 0, 100, 50}).isEmpty());
}

TEST(Polygons, HaveEqualSidesInTheLargestCircleFromTheTopAndBendThemAtMostToACircle) {
    const QRectF rect(20, 30, 140, 90);
    for (unsigned sides = 3; sides <= 12; ++sides) {
        const double half = std::acos(-1.) / sides, outer = 40, side = 2 * outer * std::sin(half);
        const QPainterPath sharp = RegularPolygon{sides, 5}.path(rect);
        const auto drawn = segments(sharp);
        ASSERT_EQ(drawn.size(), sides);
        expectNear(drawn.front().p1(), {rect.center().x(), rect.top() + 5});
        for (const QLineF& piece : drawn) {
            EXPECT_NEAR(QLineF(rect.center(), piece.p1()).length(), outer, 1e-9);
            EXPECT_NEAR(piece.length(), side, 1e-9);
        }
        for (const double radius : {0.5, 10., 39., 1e6, infinity}) {
            const QPainterPath round = RoundedRegularPolygon{sides, radius, 5}.path(rect);
            double straight = 0;
            for (const QLineF& piece : segments(round))
                straight += piece.length();
            const double cut = std::min(radius * std::tan(half), side / 2);
            EXPECT_NEAR(straight, sides * (side - 2 * cut), 1e-6) << sides << ' ' << radius;
            const double reach =
                outer - std::min(radius, outer * std::cos(half)) * (1 / std::cos(half) - 1);
            EXPECT_NEAR(round.boundingRect().top(), rect.center().y() - reach, 0.01) << sides;
        }
        EXPECT_EQ((RoundedRegularPolygon{sides, 0, 5}.path(rect)), sharp);
    }
}

TEST(Polygons, WithoutThreeSidesOrRoomDrawNothing) {
    for (const auto& [sides, by] : {std::pair(0U, 0.), {1U, 0.}, {2U, 0.}, {6U, 25.}}) {
        EXPECT_EQ((RegularPolygon{sides, by}.path(rects[0]).elementCount()), 0) << sides;
        EXPECT_EQ((RoundedRegularPolygon{sides, 4, by}.path(rects[0]).elementCount()), 0) << sides;
    }
}

} // namespace
} // namespace kovamo
