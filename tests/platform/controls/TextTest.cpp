#include "support/Stage.h"

#include "platform/foundation/SystemColors.h"

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

// The digits that a rolling number shows, each followed by a ~ while it is between two.
std::string digits(const Stage& stage) {
    std::map<double, QString> places;
    for (const QQuickItem* place : stage.item("number")->childItems().first()->childItems())
        if (place->isVisible() && place->property("character").isValid())
            places[place->x()] = place->property("character").toString() +
                                 (place->property("rolling").toBool() ? u"~" : u"");
    std::string text;
    for (const auto& [x, character] : places)
        text += character.toStdString();
    return text;
}

constexpr const char* number =
    "RollingNumber { objectName: 'number'; text: '9,995'; color: 'black' }";

TEST(RollingNumber, RollsWhatChangesAndStandsOtherwise) {
    Stage stage(number, false);
    EXPECT_EQ(digits(stage), "9,995") << "rolls when first shown";
    const double narrow = stage.item("number")->implicitWidth();
    const auto rollTo = [&](const char* text) {
        stage.set("text", text, "number");
        EXPECT_EQ(digits(stage).find('~') != std::string::npos, *text != '\0') << text;
        EXPECT_TRUE(Stage::soon([&] { return digits(stage) == text; })) << digits(stage);
    };
    for (const char* text : {"9,996", "10,005", "0", "5 €", ""})
        rollTo(text);
    EXPECT_LT(stage.item("number")->implicitWidth(), narrow);
    stage.set("digits", QStringList{"٠", "١", "٢", "٣", "٤", "٥", "٦", "٧", "٨", "٩"}, "number");
    rollTo("١٬٢٣٤"); // from left to right
}

TEST(RollingNumber, StandsStillWithReducedMotion) {
    Stage stage(number);
    stage.set("text", "1,234", "number");
    EXPECT_EQ(digits(stage), "1,234");
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
