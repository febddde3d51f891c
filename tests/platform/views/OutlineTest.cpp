#include "platform/views/Shape.h"

#include <cmath>
#include <gtest/gtest.h>

namespace kovamo {
namespace {

const QRectF card(10, 20, 300, 120);

/// The curvature, in 1/points, of a path's cubic that begins at element `at`, at either of its
/// ends.
double curvature(const QPainterPath& path, int at, bool end) {
    QPointF p[4];
    for (int i = 0; i < 4; ++i)
        p[i] = path.elementAt(at + (end ? 3 - i : i));
    const QPointF first = p[1] - p[0], second = p[2] - p[1];
    const double cross = first.x() * second.y() - first.y() * second.x();
    return 2. / 3 * std::abs(cross) / std::pow(std::hypot(first.x(), first.y()), 3);
}

TEST(ContinuousCorners, LeaveTheEdgesStraightAndReachTheCirclesCurvature) {
    const double radius = 20;
    const QPainterPath path = RoundedRectangle{radius, true}.path(card);
    int curves = 0;
    for (int i = 0; i + 3 < path.elementCount(); ++i) {
        if (path.elementAt(i + 1).type != QPainterPath::CurveToElement)
            continue;
        const bool leavesEdge = curves++ % 2 == 0;
        EXPECT_NEAR(curvature(path, i, !leavesEdge), 0, 1e-9) << "at the edge, curve " << curves;
        EXPECT_NEAR(curvature(path, i, leavesEdge), 1 / radius, 1e-9) << "middle " << curves;
        const QPointF middle = path.elementAt(leavesEdge ? i + 3 : i);
        const double dx = std::min(middle.x() - card.left(), card.right() - middle.x());
        const double dy = std::min(middle.y() - card.top(), card.bottom() - middle.y());
        EXPECT_NEAR(std::hypot(radius - dx, radius - dy), radius, 1e-9) << "on the circle";
    }
    EXPECT_EQ(curves, 8);
    EXPECT_EQ(path.boundingRect(), card);
}

TEST(RoundedCorners, NeverLeaveTheRectangleWhateverTheRadius) {
    for (const bool continuous : {false, true}) {
        for (const double radius : {-5., 0., 1., 30., 45., 60., 1e9, std::nan("")}) {
            const QPainterPath path = RoundedRectangle{radius, continuous}.path(card);
            EXPECT_EQ(path.boundingRect(), card) << radius << continuous;
            EXPECT_EQ(path.contains(card.topLeft() + QPointF(0.2, 0.2)), !(radius > 0.9)) << radius;
            EXPECT_TRUE(path.contains(card.center())) << radius;
        }
    }
}

/// A path of straight lines, a curve and a second subpath.
QPainterPath winding() {
    QPainterPath path(QPointF(5, 5));
    path.lineTo(35, 5);
    path.lineTo(35, 45);
    path.cubicTo(60, 90, -20, 40, 80, 10);
    path.moveTo(100, 100);
    path.lineTo(100, 160);
    return path;
}

TEST(Trimming, KeepsTheAskedShareOfTheLengthAndGoesOnWhereItLeftOff) {
    const QPainterPath whole = winding();
    for (double from = 0.02; from < 1; from += 0.13) {
        for (double to = from + 0.01; to <= 1; to += 0.11) {
            const QPainterPath part = trimmed(whole, from, to);
            EXPECT_NEAR(part.length() / whole.length(), to - from, 0.01) << from << ' ' << to;
            const QPointF gap = trimmed(whole, 0, from).currentPosition() - part.elementAt(0);
            EXPECT_NEAR(std::hypot(gap.x(), gap.y()), 0, 0.3) << from;
        }
    }
}

TEST(Trimming, OfTheWholeIsTheWholeAndOfNothingIsEmpty) {
    const QPainterPath whole = winding();
    EXPECT_EQ(trimmed(whole, 0, 1), whole);
    EXPECT_EQ(trimmed(whole, -3, 8), whole);
    const double none = std::nan("");
    for (const auto& [from, to] :
         {std::pair(0.5, 0.5), {0.8, 0.2}, {1., 2.}, {none, 1.}, {0., none}})
        EXPECT_TRUE(trimmed(whole, from, to).isEmpty()) << from << ' ' << to;
    EXPECT_TRUE(trimmed(QPainterPath(), 0.2, 0.8).isEmpty());
}

} // namespace
} // namespace kovamo
