#include "support/Stage.h"

namespace kovamo {
namespace {

constexpr const char* sheet = R"(
    property bool flag: false
    property bool stubborn: false
    BarButton { objectName: 'button'; symbol: 'plus'; focus: true }
    SwipeRow { y: 500; width: 390; onClicked: log += 'behind ' }
    Sheet {
        objectName: 'sheet'; presented: flag; title: 'Sheet'
        onDismissed: { log += 'dismissed '; flag = stubborn; }
        onClosed: log += 'closed '
        NavigationStack {
            objectName: 'stack'
            initialPage: GroupedForm {
                objectName: 'page'; navigationTitle: 'First'
                FormTextField { objectName: 'field'; focus: true }
                Item { width: 1; height: 200 }
                FormTextField { objectName: 'last' }
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

TEST(Sheet, EndsAboveTheKeyboardWithTheFieldInSight) {
    SheetStage stage;
    QQuickItem* layer = stage.item("page");
    while (!layer->property("keyboardTop").isValid())
        layer = layer->parentItem();
    const auto bottom = [&](const char* name) {
        const QQuickItem* item = stage.item(name);
        return item->mapToScene({0, item->height()}).y();
    };
    EXPECT_EQ(bottom("page"), 844);
    stage.item("last")->forceActiveFocus();
    for (const double top : {500.0, 300.0, 250.0}) {
        layer->setProperty("keyboardTop", top);
        EXPECT_EQ(bottom("page"), top);
        EXPECT_TRUE(Stage::soon([&] { return bottom("last") < top; })) << bottom("last");
        EXPECT_GT(bottom("last"), 100);
    }
}

TEST(Sheet, IsDraggedByItsBar) {
    const std::tuple<const char*, int, int, int, bool> cases[] = {
        {"far", 60, 500, 4000, true},         {"near", 60, 100, 4000, false},
        {"near, thrown", 60, 100, 40, true},  {"up", 60, -40, 40, false},
        {"the content", 700, 100, 40, false},
    };
    for (const auto& [what, from, by, milliseconds, closes] : cases) {
        SheetStage stage;
        stage.drag({200, from}, {0, by}, milliseconds);
        EXPECT_EQ(stage.log(), closes ? "dismissed closed " : "") << what;
        EXPECT_EQ(stage.position(), closes ? 0 : 1) << what;
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

    stage.set("flag", false);
    EXPECT_TRUE(Stage::soon([&] { return stage.position() < 0.9; }));
    stage.drag(stage.item("stack")->mapToScene({200, 20}).toPoint(), {0, 20});
    EXPECT_TRUE(Stage::soon([&] { return stage.log().ends_with("closed "); }))
        << "what was held on its way goes on";
}

TEST(Sheet, LeavesTheFocusToTheOneThatComes) {
    Stage stage(R"(
        property int shown: 0
        FormTextField { objectName: 'behind' }
        Sheet { objectName: 'first'; presented: shown === 1; title: 'First'; FormTextField {} }
        Sheet { objectName: 'second'; presented: shown === 2; title: 'Second'; FormTextField { objectName: 'field' } })",
                false);
    stage.item("behind")->forceActiveFocus();
    for (const char* name : {"first", "second"}) {
        stage.set("shown", stage.get("shown").toInt() + 1);
        EXPECT_TRUE(Stage::soon([&] { return stage.get("position", name) == 1; }));
    }
    EXPECT_TRUE(Stage::soon([&] { return stage.get("position", "first") == 0; }));
    EXPECT_TRUE(stage.item("field")->isAncestorOf(stage.window()->activeFocusItem()));
}

TEST(Sheet, IsACardOnAWideWindow) {
    SheetStage stage;
    stage.window()->resize(1600, 1000);
    stage.item()->setSize({1600, 1000});
    EXPECT_TRUE(Stage::soon([&] { return stage.item("stack")->width() == 620; }));
    EXPECT_EQ(middle(stage.item("stack")).x(), 800);
}

TEST(Sheet, OverAnotherIsScrolledByTheWheel) {
    Stage stage(R"(
        property bool second: false
        Sheet {
            presented: true; title: 'Sheet'
            FocusScope {
                Sheet {
                    presented: second; title: 'Over it'
                    ListView { objectName: 'list'; model: 99; delegate: Item { height: 44; width: 300 } }
                }
            }
        })");
    stage.set("second", true);
    QWheelEvent turn({100, 400}, {100, 400}, {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
    QGuiApplication::sendEvent(stage.window(), &turn);
    EXPECT_TRUE(Stage::soon([&] { return stage.get("contentY", "list").toDouble() > 0; }));
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
    for (const Qt::Key back : {Qt::Key_Escape, Qt::Key_Back, Qt::Key_unknown}) {
        QMetaObject::invokeMethod(stage.item("stack"), "go");
        EXPECT_TRUE(stage.showing("Second"));
        EXPECT_TRUE(stage.item("second")->hasActiveFocus());
        back == Qt::Key_unknown ? stage.click({20, 22}) : stage.press(back);
        EXPECT_EQ(stage.get("depth", "stack"), QVariant(1));
        EXPECT_TRUE(stage.showing("First"));
        EXPECT_EQ(stage.get("place", "first"), QVariant(7));
        EXPECT_TRUE(stage.item("first")->hasActiveFocus());
    }
}

} // namespace
} // namespace kovamo
