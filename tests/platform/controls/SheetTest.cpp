#include "Stage.h"

#include <gtest/gtest.h>

namespace kovamo {
namespace {

constexpr const char* sheet = R"(
    property bool flag: false
    property bool stubborn: false
    BarButton { objectName: 'button'; symbol: 'plus'; focus: true }
    SwipeRow { y: 500; width: 390; onClicked: log += 'behind ' }
    Sheet {
        objectName: 'sheet'; presented: flag
        onDismissed: { log += 'dismissed '; flag = stubborn; }
        onClosed: log += 'closed '
        NavigationStack {
            objectName: 'stack'
            initialPage: GroupedForm {
                objectName: 'page'; navigationTitle: 'First'
                FormTextField { objectName: 'field'; focus: true }
            }
        }
    })";

struct SheetStage : Stage {
    SheetStage(bool reducedMotion = true) : Stage(sheet, reducedMotion) {
        item("button")->forceActiveFocus();
        set("flag", true);
        EXPECT_TRUE(soon([this] { return position() == 1; }));
    }
    [[nodiscard]] double position() const { return get("position", "sheet").toDouble(); }
};

TEST(Sheet, OpensByItsFlagAndGivesTheFocusBack) {
    SheetStage stage;
    const QQuickItem* field = stage.item("field");
    EXPECT_TRUE(field->isAncestorOf(stage.window()->activeFocusItem()));
    stage.press(Qt::Key_Escape);
    EXPECT_EQ(stage.log(), "dismissed closed ");
    EXPECT_EQ(stage.get("contentItem", "sheet").value<QObject*>(), nullptr);
    EXPECT_TRUE(stage.item("button")->hasActiveFocus());
    stage.drag({200, 843}, {0, -400});
    EXPECT_EQ(stage.position(), 0) << "a drag from the edge opened it";
}

TEST(Sheet, LeavesNothingToWhatIsBehind) {
    SheetStage stage;
    stage.click({200, 520});
    stage.drag({200, 520}, {-300, 0});
    stage.click({200, 60});
    EXPECT_EQ(stage.log(), "");
    for (int tabs = 0; tabs < 4; ++tabs) {
        stage.press(Qt::Key_Tab);
        EXPECT_TRUE(stage.item("stack")->isAncestorOf(stage.window()->activeFocusItem()));
    }
}

TEST(Sheet, IsDraggedByItsBar) {
    struct Case {
        const char* what;
        QPoint from;
        int by;
        int milliseconds;
        const char* log;
    };
    for (const Case& c :
         {Case{"far", {200, 60}, 500, 4000, "dismissed closed "},
          Case{"near", {200, 60}, 100, 4000, ""},
          Case{"near, thrown", {200, 60}, 100, 40, "dismissed closed "},
          Case{"up", {200, 60}, -40, 40, ""}, Case{"the content", {200, 700}, 100, 40, ""}}) {
        SheetStage stage;
        stage.drag(c.from, {0, c.by}, c.milliseconds);
        EXPECT_EQ(stage.log(), c.log) << c.what;
        EXPECT_EQ(stage.position(), *c.log == '\0' ? 1 : 0) << c.what;
    }
    SheetStage stage;
    stage.set("stubborn", true);
    stage.click({200, 10});
    EXPECT_EQ(stage.log(), "dismissed ");
    EXPECT_EQ(stage.position(), 1) << "the owner kept it open";
}

TEST(Sheet, CanBeTurnedBackOnItsWay) {
    SheetStage stage(false);
    const QQuickItem* page = stage.item("page");
    stage.set("flag", false);
    EXPECT_TRUE(Stage::soon([&] { return stage.position() < 0.9; }));
    EXPECT_GT(stage.position(), 0);
    stage.set("flag", true);
    EXPECT_TRUE(Stage::soon([&] { return stage.position() == 1; }));
    EXPECT_EQ(stage.item("page"), page) << "it was made anew";
    EXPECT_EQ(stage.log(), "");
}

TEST(Sheet, IsACardOnAWideWindow) {
    SheetStage stage;
    stage.window()->resize(1600, 1000);
    stage.item()->setSize({1600, 1000});
    EXPECT_TRUE(Stage::soon([&] { return stage.item("stack")->width() == 620; }));
    EXPECT_EQ(Stage::middle(stage.item("stack")).x(), 800);
}

TEST(NavigationStack, GoesForwardAndBackAndKeepsThePagesBelow) {
    Stage stage(R"(
        Component { id: second; Item { property string navigationTitle; objectName: 'second' } }
        NavigationStack {
            objectName: 'stack'; anchors.fill: parent; focus: true
            function go() { push(second, { navigationTitle: 'Second' }); }
            initialPage: Item { objectName: 'first'; property string navigationTitle: 'First'; property int place }
        })");
    stage.set("place", 7, "first");
    EXPECT_TRUE(stage.showing("First"));
    const auto back = {+[](Stage& s) { s.press(Qt::Key_Escape); },
                       +[](Stage& s) { s.press(Qt::Key_Back); },
                       +[](Stage& s) {
                           s.click({20, 22});
                       }};
    for (const auto& goBack : back) {
        QMetaObject::invokeMethod(stage.item("stack"), "go");
        EXPECT_TRUE(stage.showing("Second"));
        EXPECT_TRUE(stage.item("second")->hasActiveFocus());
        goBack(stage);
        EXPECT_EQ(stage.get("depth", "stack"), QVariant(1));
        EXPECT_TRUE(stage.showing("First"));
        EXPECT_EQ(stage.get("place", "first"), QVariant(7));
    }
}

} // namespace
} // namespace kovamo
