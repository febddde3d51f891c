#include "Raster.h"
#include "platform/views/ShapeViews.h"
#include "platform/views/Text.h"
#include "platform/views/ViewModifiers.h"

namespace kovamo {
namespace {

const QSize size(40, 80);
const LinearGradient sunset{{Color{SystemColor::yellow}, Color{SystemColor::red}}};

/// A key of the test's own: the environment is open.
struct DepthKey {
    using Value = int;
    static const int& defaultValue() {
        static constexpr int none = -1;
        return none;
    }
};

struct DepthWitness {
    std::shared_ptr<std::vector<int>> depths = std::make_shared<std::vector<int>>();
    void paint(QPainter&, const QRectF&, const EnvironmentValues& environment) const {
        depths->push_back(environment.value<DepthKey>());
    }
};

struct PaintsNothing {};
struct PaintsWithoutEnvironment {
    void paint(QPainter&, const QRectF&) const {}
};
struct PaintsOnce : Witness {
    PaintsOnce(const PaintsOnce&) = delete;
};
static_assert(View<Witness> && View<AnyView> && View<FilledShape<Capsule, Color>>);
static_assert(!View<PaintsNothing> && !View<PaintsWithoutEnvironment> && !View<PaintsOnce>);
static_assert(!std::constructible_from<AnyView, PaintsNothing>);
static_assert(!Shape<Color> && !ShapeStyle<Capsule> && !EnvironmentKey<Color>);

TEST(Environment, TheInnermostSettingWinsAndEndsWithWhatItEncloses) {
    const DepthWitness witness;
    const AnyView inner = environment<DepthKey>(witness, 2);
    const AnyView views =
        ZStack{{witness, environment<DepthKey>(ZStack{{witness, inner, witness}}, 1),
                environment<ColorSchemeKey>(witness, ColorScheme::dark)}};
    raster(views, size);
    EXPECT_EQ(*witness.depths, (std::vector{-1, 1, 2, 1, -1}));
}

TEST(Environment, SettingAKeyLeavesTheOriginalAndOtherKeysAlone) {
    const EnvironmentValues plain;
    const auto dark = plain.setting<ColorSchemeKey>(ColorScheme::dark);
    const auto deep = dark.setting<DepthKey>(7).setting<DepthKey>(8);
    EXPECT_EQ(plain.value<ColorSchemeKey>(), ColorScheme::light);
    EXPECT_EQ(deep.value<ColorSchemeKey>(), ColorScheme::dark);
    EXPECT_EQ(deep.value<DepthKey>(), 8);
    EXPECT_EQ(Environment<DepthKey>{}.value(dark), -1);
}

TEST(AnyViewOf, CopiesShareTheViewAndAnEmptyOnePaintsNothing) {
    const AnyView view = Witness{}, copy = view;
    EXPECT_EQ(copy, view);
    EXPECT_NE(AnyView(Witness{}), view);
    EXPECT_FALSE(isPainted(raster(AnyView(), size), QRect(QPoint(), size)));
}

TEST(Colors, FollowTheAppearanceAndTheirOpacity) {
    const AnyView page = FilledShape{Rectangle{}, Color{SystemColor::background}};
    const auto dark = EnvironmentValues().setting<ColorSchemeKey>(ColorScheme::dark);
    const QRectF whole(QPointF(), size);
    expectColor(raster(page, size, whole, 1, dark).pixelColor(5, 5), Qt::black);
    const Color half{SystemColor::black, 0.5};
    expectColor(raster(FilledShape{Rectangle{}, half}, size).pixelColor(5, 5),
                QColor(128, 128, 128));
    // The named colour's own opacity is kept: 60 % of 50 %.
    EXPECT_NEAR((Color{SystemColor::secondaryLabel, 0.5}.resolved(dark).alphaF()), 0.3, 0.01);
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
    expectColor(down.pixelColor(80, 60), Qt::white, "above");
    LinearGradient across = sunset;
    across.startPoint = UnitPoint::trailing();
    across.endPoint = UnitPoint::leading();
    expectColor(painted(across).pixelColor(41, 160), red, "leading");
    expectColor(painted(across).pixelColor(118, 160), yellow, "trailing");
    LinearGradient three = sunset;
    three.colors.push_back({SystemColor::blue});
    expectColor(painted(three).pixelColor(80, 160), red, "the middle stop");
    expectColor(painted({{Color{SystemColor::red}}}).pixelColor(80, 100), red, "a single colour");
    expectColor(painted({}).pixelColor(80, 100), Qt::white, "no colour");
    EXPECT_NE(sunset, three);
    EXPECT_NE(sunset, across);
    EXPECT_EQ(sunset, (LinearGradient{{{SystemColor::yellow}, {SystemColor::red}}}));
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

TEST(Filling, CoversWhereAPathOverlapsItself) {
    const QColor red = light(SystemColor::red);
    const QImage filled =
        raster(FilledShape{Overlapping{}, Color{SystemColor::red}}, size, {5, 30, 30, 30});
    expectColor(filled.pixelColor(20, 45), red, "the overlap, where the rectangle stands");
    const ClippedView clipped{FilledShape{Rectangle{}, Color{SystemColor::red}}, Overlapping{}};
    expectColor(raster(clipped, size, {5, 30, 30, 30}).pixelColor(20, 45), red, "clipped");
    expectColor(raster(clipped, size, {5, 30, 30, 30}).pixelColor(30, 35), Qt::white, "outside");
}

TEST(Stroking, IsAsWideAsToldWithRoundEndsAndNothingWithoutWidth) {
    struct Level {
        [[nodiscard]] QPainterPath path(const QRectF& rect) const {
            QPainterPath path(QPointF(10, rect.height() / 2));
            path.lineTo(30, rect.height() / 2);
            return path;
        }
    };
    const QColor red = light(SystemColor::red);
    const QImage thick =
        raster(StrokedShape{Level{}, Color{SystemColor::red}, StrokeStyle{10}}, size, 4);
    expectColor(thick.pixelColor(80, 4 * 36), red, "inside the width");
    expectColor(thick.pixelColor(80, 4 * 34), Qt::white, "beside it");
    expectColor(thick.pixelColor(4 * 6, 160), red, "the cap");
    expectColor(thick.pixelColor(4 * 5 + 1, 4 * 36), Qt::white, "the cap's corner");
    for (const double none : {0., -3., std::nan("")})
        EXPECT_FALSE(isPainted(
            raster(StrokedShape{Level{}, Color{SystemColor::red}, StrokeStyle{none}}, size),
            QRect(QPoint(), size)))
            << none;
}

TEST(Clipping, HasSmoothEdgesAndEndsWithTheView) {
    const FilledShape red{Rectangle{}, Color{SystemColor::red}};
    const AnyView views = ZStack{
        {ClippedView{red, Capsule{}},
         PaddedView{FilledShape{Rectangle{}, Color{SystemColor::blue}}, QMarginsF(0, 78, 0, 0)}}};
    const QImage image = raster(views, size);
    expectColor(image.pixelColor(0, 0), Qt::white, "outside the capsule");
    expectColor(image.pixelColor(0, 79), light(SystemColor::blue), "after the clip");
    int shades = 0;
    for (int x = 0; x < 20; ++x) {
        const QColor pixel = image.pixelColor(x, 3);
        shades += pixel != QColor(Qt::white) && pixel != light(SystemColor::red);
    }
    EXPECT_GT(shades, 0) << "a hard edge";
}

TEST(Padding, TakesItsMarginsFromTheRectangle) {
    const Witness witness;
    raster(PaddedView{witness, QMarginsF(1, 2, 3, 4)}, size, {10, 10, 20, 20});
    EXPECT_EQ(witness.seen->rects, std::vector{QRectF(11, 12, 16, 14)});
}

TEST(Words, StandInTheMiddleAndAreCutWhereTheyDoNotFit) {
    const Text text{QStringLiteral("A label far too long for its place"), {SystemColor::label}};
    const QImage image = raster(text, {100, 40}, {20, 10, 60, 20});
    EXPECT_TRUE(isPainted(image, {20, 10, 60, 20}));
    EXPECT_FALSE(isPainted(image, {0, 0, 19, 40}));
    EXPECT_FALSE(isPainted(image, {81, 0, 19, 40}));
}

} // namespace
} // namespace kovamo
