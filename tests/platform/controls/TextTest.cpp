#include "support/Stage.h"

#include "platform/desktop/SystemColors.h"

namespace kovamo {
namespace {

TEST(EmphasizedText, TakesOffTheStarsAndKeepsTheBlanks) {
    Stage stage("EmphasizedText { objectName: 'label'; markup: '' }");
    const auto width = [&](const char* markup) {
        stage.set("markup", markup, "label");
        return stage.get("implicitWidth", "label").toDouble();
    };
    const std::tuple<const char*, const char*, bool> cases[] = {
        {"**+ **", "+ ", true},
        {"**   0**", "   0", true},
        {"****", "", true},
        {"***", "***", false},
        {"**half", "**half", false},
        {"a **b**", "a **b**", false},
        {"**<i>x</i> *y***", "<i>x</i> *y*", true},
    };
    for (const auto& [markup, shown, bold] : cases) {
        stage.set("markup", markup, "label");
        EXPECT_EQ(stage.get("text", "label").toString().toStdString(), shown);
        EXPECT_EQ(stage.get("font", "label").value<QFont>().bold(), bold) << markup;
    }
    const double blank = width("**0 0**") - width("**00**");
    EXPECT_GT(blank, 2);
    EXPECT_NEAR(width("**   0**"), width("**0**") + 3 * blank, 2);
    EXPECT_NEAR(width("**+ **"), width("**+**") + blank, 2);
}

constexpr const char* number =
    "RollingNumber { objectName: 'number'; text: '9,995'; duration: Motion.duration(250);"
    " color: 'black'; font: TextStyles.largeTitle }";

bool isRolling(const Stage& stage) {
    return stage.get("rolling", "number").toBool();
}

TEST(RollingNumber, RollsWhatChangesAndStandsOtherwise) {
    Stage stage(number, false);
    EXPECT_FALSE(isRolling(stage)) << "when first shown";
    const double narrow = stage.item("number")->implicitWidth();
    for (const char* text : {"9,996", "10,005", "0", "٠", "١٬٢٣٤", "5 €", ""}) {
        const QImage before = stage.window()->grabWindow();
        stage.set("text", text, "number");
        EXPECT_TRUE(isRolling(stage)) << text;
        EXPECT_TRUE(Stage::soon([&] { return !isRolling(stage); })) << text;
        Stage standing(number);
        standing.set("text", text, "number");
        EXPECT_EQ(stage.window()->grabWindow(), standing.window()->grabWindow()) << text;
        EXPECT_NE(stage.window()->grabWindow(), before) << text;
    }
    EXPECT_LT(stage.item("number")->implicitWidth(), narrow);
}

TEST(RollingNumber, StandsStillWithReducedMotion) {
    Stage stage(number);
    stage.set("text", "1,234", "number");
    EXPECT_FALSE(isRolling(stage));
}

TEST(EmojiText, IsInColourAndCutsWhatIsTooWide) {
    Stage stage("EmojiText { objectName: 'emoji'; color: 'black'; font: TextStyles.body }");
    const auto isColoured = [&](const char* text) {
        stage.set("text", QString::fromUtf8(text), "emoji");
        const QImage image = stage.window()->grabWindow();
        for (int pixel = 0; pixel < image.width() * image.height(); ++pixel) {
            const QColor color(image.pixel(pixel % image.width(), pixel / image.width()));
            if (color.hsvSaturation() > 100 && color.value() > 100)
                return true;
        }
        return false;
    };
    for (const char* text : {"🍎", "✈", "👩‍🚀", "🇩🇪", "🍎 shop"})
        EXPECT_TRUE(isColoured(text)) << text;
    for (const char* text : {"", "1", "#", "shop"})
        EXPECT_FALSE(isColoured(text)) << text;
    stage.set("text", QString(100'000, u'W'), "emoji");
    EXPECT_LT(stage.item("emoji")->implicitWidth(), 1100);
    stage.set("text", "shopping", "emoji");
    const QImage whole = stage.window()->grabWindow().copy(0, 0, 40, 40);
    stage.set("maximumWidth", 40, "emoji");
    EXPECT_LE(stage.item("emoji")->width(), 40);
    EXPECT_NE(stage.window()->grabWindow().copy(0, 0, 40, 40), whole) << "no ellipsis";
}

TEST(SystemImage, PaintsTheSymbolsThatThereAreInTheirColour) {
    Stage stage(
        "SystemImage { objectName: 'image'; color: SystemColors.red; width: 24; height: 24 }");
    const auto painted = [&](const QString& name) {
        stage.set("name", name, "image");
        const QImage image = stage.window()->grabWindow().copy(0, 0, 24, 24);
        const QRgb red = resolved(SystemColor::red, ColorScheme::light).rgb();
        int count = 0;
        for (int pixel = 0; pixel < 24 * 24; ++pixel)
            count += image.pixel(pixel % 24, pixel / 24) == red;
        return count;
    };
    for (const char* name :
         {"plus", "list.bullet", "arrow.triangle.2.circlepath.circle", "xmark.circle.fill",
          "chevron.left", "chevron.right", "trash", "face.smiling"})
        EXPECT_GT(painted(QString::fromLatin1(name)), 10) << name;
    EXPECT_EQ(painted("no.such.symbol"), 0);
}

} // namespace
} // namespace kovamo
