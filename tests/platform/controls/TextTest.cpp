#include "Stage.h"

#include "platform/foundation/SystemColors.h"

#include <gtest/gtest.h>

namespace kovamo {
namespace {

TEST(EmphasizedText, TakesOffTheStarsAndKeepsTheBlanks) {
    Stage stage("EmphasizedText { objectName: 'label'; markup: '' }");
    struct Case {
        const char* markup;
        const char* shown;
        bool bold;
    };
    const auto width = [&](const char* markup) {
        stage.set("markup", QString::fromLatin1(markup), "label");
        return stage.get("implicitWidth", "label").toDouble();
    };
    for (const Case& c :
         {Case{"**Current**", "Current", true}, Case{"**+ **", "+ ", true},
          Case{"**   0**", "   0", true}, Case{"****", "", true}, Case{"plain", "plain", false},
          Case{"***", "***", false}, Case{"**half", "**half", false},
          Case{"a **b**", "a **b**", false}, Case{"**<i>x</i> *y***", "<i>x</i> *y*", true}}) {
        stage.set("markup", QString::fromLatin1(c.markup), "label");
        EXPECT_EQ(stage.get("text", "label").toString().toStdString(), c.shown);
        EXPECT_EQ(stage.get("font", "label").value<QFont>().bold(), c.bold) << c.markup;
    }
    const double blank = width("**0 0**") - width("**00**");
    EXPECT_GT(blank, 2);
    EXPECT_NEAR(width("**   0**"), width("**0**") + 3 * blank, 2);
    EXPECT_NEAR(width("**+ **"), width("**+**") + blank, 2);
}

// The digits that a rolling number shows, and whether any of them is between two.
struct Digits {
    std::string text;
    bool rolling = false;
};

Digits digits(const Stage& stage) {
    Digits shown;
    std::map<double, QString> places;
    for (const QQuickItem* place : stage.item("number")->childItems().first()->childItems())
        if (place->isVisible() && place->property("character").isValid()) {
            places[place->x()] = place->property("character").toString();
            shown.rolling = shown.rolling || place->property("rolling").toBool();
        }
    for (const auto& [x, character] : places)
        shown.text += character.toStdString();
    return shown;
}

constexpr const char* number =
    "RollingNumber { objectName: 'number'; text: '9,995'; color: 'black' }";

TEST(RollingNumber, RollsWhatChangesAndStandsOtherwise) {
    Stage stage(number, false);
    EXPECT_FALSE(digits(stage).rolling) << "rolls when first shown";
    const double narrow = stage.item("number")->implicitWidth();
    for (const char* text : {"9,996", "10,005", "0", "5 €", ""}) {
        stage.set("text", QString::fromUtf8(text), "number");
        EXPECT_EQ(digits(stage).rolling, *text != '\0') << text;
        EXPECT_TRUE(Stage::soon([&] { return !digits(stage).rolling; })) << text;
        EXPECT_EQ(digits(stage).text, text);
    }
    EXPECT_LT(stage.item("number")->implicitWidth(), narrow);
    stage.set("digits", QStringList{"٠", "١", "٢", "٣", "٤", "٥", "٦", "٧", "٨", "٩"}, "number");
    stage.set("text", QStringLiteral("١٬٢٣٤"), "number");
    EXPECT_TRUE(digits(stage).rolling) << "other digits";
    EXPECT_TRUE(Stage::soon([&] { return !digits(stage).rolling; }));
    EXPECT_EQ(digits(stage).text, "١٬٢٣٤") << "a number runs from left to right";
}

TEST(RollingNumber, StandsStillWithReducedMotion) {
    Stage stage(number);
    stage.set("text", QStringLiteral("1,234"), "number");
    EXPECT_FALSE(digits(stage).rolling);
    EXPECT_EQ(digits(stage).text, "1,234");
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
    for (const char* name : {"plus", "list.bullet", "arrow.triangle.2.circlepath.circle", "xmark",
                             "chevron.left", "chevron.right", "trash", "face.smiling"})
        EXPECT_GT(painted(QString::fromLatin1(name)), 10) << name;
    EXPECT_EQ(painted("no.such.symbol"), 0);
}

} // namespace
} // namespace kovamo
