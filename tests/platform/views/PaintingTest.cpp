#include "Raster.h"
#include "platform/views/ShapeViews.h"
#include "platform/views/ViewItem.h"
#include "platform/views/ViewModifiers.h"

#include <QQuickWindow>

namespace kovamo {
namespace {

const QSize size(40, 80);
const LinearGradient sunset{{Color{SystemColor::yellow}, Color{SystemColor::red}}};

TEST(Environment, TheInnermostSettingWinsAndEndsWithWhatItEncloses) {
    using enum ColorScheme;
    const Witness witness;
    const AnyView inner = environment<ColorSchemeKey>(witness, light);
    const AnyView outer = environment<ColorSchemeKey>(ZStack{{witness, inner, witness}}, dark);
    raster(ZStack{{witness, outer, witness}}, size);
    EXPECT_EQ(*witness.schemes, (std::vector{light, dark, light, dark, light}));
}

TEST(Colors, FollowTheAppearanceAndTheirOpacity) {
    const AnyView page = FilledShape{Rectangle{}, Color{SystemColor::background}};
    const AnyView dark = environment<ColorSchemeKey>(page, ColorScheme::dark);
    expectColor(raster(dark, size).pixelColor(5, 5), Qt::black);
    // The named colour's own opacity is kept: 60 % of 50 %.
    EXPECT_NEAR((Color{SystemColor::secondaryLabel, 0.5}.resolved({}).alphaF()), 0.3, 0.01);
}

TEST(Gradients, RunBetweenTheirPointsOfTheFilledRectangle) {
    const QColor yellow = light(SystemColor::yellow), red = light(SystemColor::red);
    const QRectF rect(10, 20, 20, 40);
    const auto painted = [&](const LinearGradient& gradient) {
        return raster(FilledShape{Rectangle{}, gradient}, size, rect, 4);
    };
    const QImage down = painted(sunset);
    expectColor(down.pixelColor(80, 81), yellow, "top");
    expectColor(down.pixelColor(80, 238), red, "bottom");
    LinearGradient across = sunset;
    across.startPoint = UnitPoint::trailing();
    across.endPoint = UnitPoint::leading();
    expectColor(painted(across).pixelColor(41, 160), red, "leading");
    expectColor(painted(across).pixelColor(118, 160), yellow, "trailing");
    expectColor(painted({{Color{SystemColor::red}}}).pixelColor(80, 100), red, "a single colour");
    expectColor(painted({}).pixelColor(80, 100), Qt::white, "no colour");
}

TEST(FillingACapsule, GoesOnAsItWasWhereItIsTooThinToShowItsEnds) {
    for (const double width : {0.4, 1.0, 1.1}) {
        const QRectF rect(10.25, 20, width, 40);
        const QImage capsule = raster(FilledShape{Capsule{}, sunset}, size, rect);
        const QImage box = raster(FilledShape{Rectangle{}, sunset}, size, rect);
        for (const int y : {15, 21, 40, 58, 65})
            for (const int x : {9, 10, 11, 12})
                expectColor(capsule.pixelColor(x, y), box.pixelColor(x, y));
    }
}

/// Two overlapping squares of one path, both wound the same way.
struct Overlapping {
    [[nodiscard]] QPainterPath path(const QRectF&) const {
        QPainterPath path;
        path.addRect(0, 0, 20, 20);
        path.addRect(10, 10, 20, 20);
        return path;
    }
};

TEST(FillingAndClipping, CoverWhereAPathOverlapsItselfAndEndWithTheView) {
    const FilledShape red{Rectangle{}, Color{SystemColor::red}};
    const FilledShape overlapping{Overlapping{}, red.style};
    const ClippedView clipped{red, Overlapping{}};
    const PaddedView below{FilledShape{Rectangle{}, Color{SystemColor::blue}}, {0, 28, 0, 0}};
    for (const AnyView& view : {AnyView(overlapping), AnyView(clipped)}) {
        const QImage image = raster(ZStack{{view, below}}, size, {5, 30, 30, 30});
        expectColor(image.pixelColor(20, 45), light(SystemColor::red), "the overlap");
        expectColor(image.pixelColor(30, 35), Qt::white, "outside");
        expectColor(image.pixelColor(6, 59), light(SystemColor::blue), "after the clip");
    }
}

TEST(Clipping, HasSmoothEdges) {
    const ClippedView clipped{FilledShape{Rectangle{}, Color{SystemColor::red}}, Capsule{}};
    const QImage image = raster(clipped, size);
    int shades = 0;
    for (int x = 0; x < 20; ++x)
        shades += image.pixelColor(x, 3).green() > 80 && image.pixelColor(x, 3).green() < 230;
    EXPECT_GT(shades, 0);
}

// The screens of this program's tests have two pixels to a point.
const bool dense = qputenv("QT_SCALE_FACTOR", "2");

TEST(TheItem, PaintsItsViewAtTheScreensOwnResolutionInTheAppearanceInForce) {
    QQuickWindow window;
    window.resize(100, 100);
    ViewItem item(window.contentItem());
    item.setSize({60, 60});
    // One pixel wide, on the pixels' grid: blurred if it were painted in points.
    const FilledShape label{Rectangle{}, Color{SystemColor::label}};
    item.setView(PaddedView{label, QMarginsF(30, 10, 29.5, 0)});
    const QImage image = window.grabWindow();
    EXPECT_EQ(image.size(), QSize(200, 200));
    for (const auto& [x, y, color] : {std::tuple(59, 60, Qt::white),
                                      {60, 60, Qt::black},
                                      {61, 60, Qt::white},
                                      {60, 19, Qt::white}})
        expectColor(image.pixelColor(x, y), color, std::to_string(x).c_str());
    item.setView(label);
    expectColor(window.grabWindow().pixelColor(9, 9), Qt::black, "another view");
    SystemColors::shared().setColorScheme(ColorScheme::dark);
    expectColor(window.grabWindow().pixelColor(9, 9), Qt::white, "another appearance");
    SystemColors::shared().setColorScheme(ColorScheme::light);
}

} // namespace
} // namespace kovamo
