#include "shapes/GridPattern.h"
#include "shapes/HalfCapsule.h"
#include "shapes/Line.h"
#include "shapes/RegularPolygon.h"

#include <QLineF>
#include <array>
#include <cmath>
#include <deque>
#include <gtest/gtest.h>
#include <limits>

namespace kovamo {
namespace {

static_assert(InsettableShape<GridPattern> && InsettableShape<HalfCapsule>);
static_assert(InsettableShape<RegularPolygon> && InsettableShape<RoundedRegularPolygon>);
static_assert(Shape<Line> && !InsettableShape<Line> && !InsettableShape<QuadCurve>);

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
    const auto points = makeUnitPoints(std::deque<double>(50, 3.));
    for (std::size_t i = 0; i < points.size(); ++i)
        EXPECT_EQ(points[i].x, static_cast<double>(i) * (1. / 49));
}

TEST(UnitPoints, AreMappedByTheSizeAloneFromTheBottomLeft) {
    for (const QRectF& rect : rects) {
        const double w = rect.width(), h = rect.height();
        expectNear(mapUnitPoint({0, 0}, rect), {0, h});
        expectNear(mapUnitPoint({1, 1}, rect), {w, 0});
        expectNear(mapUnitPoint({0.5, 0.5}, rect), {w / 2, h / 2});
        expectNear(mapUnitPoint({-1, 3}, rect), {-w, -2 * h});
    }
}

TEST(ControlPoints, LieHalfwayAcrossAtTheFirstPointsHeight) {
    const QPointF start(10, 20);
    for (const QPointF end : {QPointF(30, 80), {30, -60}, {30, 20}, {-5, 21}}) {
        expectNear(midPoint(start, end), {(10 + end.x()) / 2, (20 + end.y()) / 2});
        expectNear(controlPoint(start, end), {(10 + end.x()) / 2, 20});
    }
}

TEST(Lines, JoinTheirPointsInOrder) {
    const Line line{{{0, 0}, {0.25, 1}, {1, 0.5}}};
    for (const QRectF& rect : rects) {
        const QPainterPath path = line.path(rect);
        ASSERT_EQ(path.elementCount(), 3);
        EXPECT_TRUE(path.elementAt(0).isMoveTo());
        for (int i = 0; i < 3; ++i)
            expectNear(path.elementAt(i),
                       mapUnitPoint(line.unitPoints[static_cast<std::size_t>(i)], rect));
        EXPECT_EQ(segments(path).size(), 2U);
    }
}

TEST(LinesAndCurves, OfNoPointAreEmptyAndOfOneASingleMove) {
    const auto expectSizes = [](const QPainterPath& none, const QPainterPath& one) {
        EXPECT_EQ(none.elementCount(), 0);
        ASSERT_EQ(one.elementCount(), 1);
        EXPECT_TRUE(one.elementAt(0).isMoveTo());
        expectNear(one.elementAt(0), {0, 25});
    };
    expectSizes(Line{}.path(rects[0]), Line{{{0, 0.5}}}.path(rects[0]));
    expectSizes(QuadCurve{}.path(rects[0]), QuadCurve{{{0, 0.5}}}.path(rects[0]));
}

TEST(LinesAndCurves, LeaveOutPointsWithoutAPlace) {
    const std::vector<PlotPoint> gaps{
        {0, nan}, {0.2, 0.4}, {0.4, infinity}, {0.6, -infinity}, {1, 1}};
    const std::vector<PlotPoint> sound{{0.2, 0.4}, {1, 1}};
    EXPECT_EQ(Line{gaps}.path(rects[0]), Line{sound}.path(rects[0]));
    EXPECT_EQ(QuadCurve{gaps}.path(rects[0]), QuadCurve{sound}.path(rects[0]));
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
            expectNear(path.elementAt(first + 3), midPoint(p1, p2), "halfway");
            expectNear(path.elementAt(first + 6), p2, "the point");
            EXPECT_NEAR(path.elementAt(first + 1).y, p1.y(), 1e-9) << "leaves level";
            EXPECT_NEAR(path.elementAt(first + 5).y, p2.y(), 1e-9) << "arrives level";
        }
    }
}

TEST(Grids, HaveTheirOuterLinesOnTheEdgesOfTheInsetBox) {
    // inset, horizontal and vertical lines; the lines of the first rectangle.
    const struct {
        GridPattern grid;
        std::vector<QLineF> lines;
    } cases[] = {
        {{0, 0, 0}, {}},
        {{0, 1, 1}, {}},
        {{0, -4, -1}, {}},
        {{5, 2, 0}, {{5, 45, 95, 45}, {5, 5, 95, 5}}},
        {{0, 3, 1}, {{0, 50, 100, 50}, {0, 25, 100, 25}, {0, 0, 100, 0}}},
        {{10, 1, 3}, {{10, 40, 10, 10}, {50, 40, 50, 10}, {90, 40, 90, 10}}},
        {{26, 2, 2}, {}},
    };
    for (const auto& [grid, lines] : cases) {
        for (const QRectF& rect : {rects[0], rects[1]}) {
            const auto drawn = segments(grid.path(rect));
            ASSERT_EQ(drawn.size(), lines.size()) << grid.inset;
            for (std::size_t i = 0; i < lines.size(); ++i) {
                expectNear(drawn[i].p1(), lines[i].p1());
                expectNear(drawn[i].p2(), lines[i].p2());
            }
        }
    }
}

TEST(HalfCapsules, AreRoundOnTheLeftAndSquareOnTheRight) {
    const struct {
        QRectF rect;
        double inset;
        QRectF box;
    } cases[] = {{{40, 40, 100, 50}, 0, {0, 0, 100, 50}},
                 {{0, 0, 100, 50}, 5, {5, 5, 90, 40}},
                 {{0, 0, 20, 90}, 4, {4, 4, 12, 82}}};
    for (const auto& [rect, by, box] : cases) {
        const QPainterPath path = HalfCapsule{by}.path(rect);
        const double radius = std::min(box.width(), box.height()) / 2;
        EXPECT_EQ(path.boundingRect(), box);
        expectNear(path.elementAt(0), box.topRight());
        expectNear(path.currentPosition(), box.bottomRight());
        EXPECT_TRUE(path.contains(box.bottomRight() - QPointF(0.1, 0.1)));
        for (const double y : {box.top() + radius, box.bottom() - radius}) {
            const QPointF centre(box.left() + radius, y);
            const double up = y < box.center().y() + 1e-9 ? -1 : 1;
            const QPointF diagonal(-radius / std::sqrt(2), up * radius / std::sqrt(2));
            EXPECT_TRUE(path.contains(centre + 0.99 * diagonal));
            EXPECT_FALSE(path.contains(centre + 1.01 * diagonal));
        }
    }
    EXPECT_TRUE(HalfCapsule{25}.path({0, 0, 100, 50}).isEmpty());
}

TEST(Polygons, HaveEqualSidesInTheLargestCircleFromTheTop) {
    for (unsigned sides = 3; sides <= 12; ++sides) {
        const QRectF rect(20, 30, 140, 90);
        const double by = 5, radius = 40;
        const auto drawn = segments(RegularPolygon{sides, by}.path(rect));
        ASSERT_EQ(drawn.size(), sides);
        expectNear(drawn.front().p1(), {rect.center().x(), rect.top() + by});
        for (const QLineF& side : drawn) {
            EXPECT_NEAR(QLineF(rect.center(), side.p1()).length(), radius, 1e-9);
            EXPECT_NEAR(side.length(), 2 * radius * std::sin(std::acos(-1.) / sides), 1e-9);
        }
    }
}

TEST(RoundedPolygons, BendTheirCornersByArcsOfAtMostHalfASide) {
    const QRectF rect(20, 30, 140, 90);
    const QPointF centre = rect.center();
    for (unsigned sides = 3; sides <= 9; ++sides) {
        const QPainterPath sharp = RegularPolygon{sides, 0}.path(rect);
        const double side = segments(sharp).front().length();
        const double apothem = 45 * std::cos(std::acos(-1.) / sides);
        for (const double radius : {0.5, 10., 30., 44., 1e6, infinity}) {
            const QPainterPath round = RoundedRegularPolygon{sides, radius, 0}.path(rect);
            const double cut = std::min(radius * std::tan(std::acos(-1.) / sides), side / 2);
            double straight = 0;
            for (const QLineF& piece : segments(round))
                straight += piece.length();
            EXPECT_NEAR(straight, sides * (side - 2 * cut), 1e-6) << sides << ' ' << radius;
            EXPECT_FALSE(round.contains(centre - QPointF(0, 44.99))) << "the tip is cut";
            EXPECT_TRUE(round.contains(centre + QPointF(0, 0.98 * apothem))) << sides;
            if (radius > 45) {
                EXPECT_NEAR(round.boundingRect().height(), 2 * apothem, 0.1) << "a circle";
            }
        }
        EXPECT_EQ((RoundedRegularPolygon{sides, 0, 0}.path(rect)), sharp);
        EXPECT_EQ((RoundedRegularPolygon{sides, -4, 0}.path(rect)), sharp);
    }
}

TEST(Polygons, WithoutThreeSidesOrRoomDrawNothing) {
    for (unsigned sides : {0U, 1U, 2U}) {
        EXPECT_EQ(RegularPolygon{sides}.path(rects[0]).elementCount(), 0) << sides;
        EXPECT_EQ((RoundedRegularPolygon{sides, 4}.path(rects[0]).elementCount()), 0) << sides;
    }
    EXPECT_EQ((RegularPolygon{6, 25}.path(rects[0]).elementCount()), 0);
}

TEST(Insets, AddUpAndLeaveTheRest) {
    const GridPattern grid = inset(inset(GridPattern{1, 4, 6}, 3), 2);
    EXPECT_EQ(grid.inset, 6);
    EXPECT_EQ(grid.horizontalLines, 4);
    EXPECT_EQ(grid.verticalLines, 6);
    const RoundedRegularPolygon polygon = inset(RoundedRegularPolygon{7, 9, 2}, -1.5);
    EXPECT_EQ(std::tuple(polygon.sides, polygon.radius, polygon.inset), std::tuple(7U, 9., 0.5));
    EXPECT_EQ(inset(HalfCapsule{1}, 4).inset, 5);
}

} // namespace
} // namespace kovamo
