#include "support/Stage.h"

namespace kovamo {
namespace {

constexpr const char* rows = R"(
    LayoutMirroring.enabled: mirrored
    LayoutMirroring.childrenInherit: true
    property bool mirrored: false
    ListView {
        anchors.fill: parent; model: 2
        delegate: SwipeRow {
            required property int index
            objectName: 'row' + index
            onClicked: log += 'clicked ' + index
            onDeleteRequested: log += 'delete ' + index
        }
    })";

TEST(SwipeRow, IsPulledAsideToDelete) {
    const std::tuple<int, const char*, double> cases[] = {
        {25, "", 0}, {60, "", 86}, {-200, "", 0}, {300, "delete 0", 390}};
    for (const bool mirrored : {false, true})
        for (const auto& [by, log, offset] : cases) {
            Stage stage(rows);
            stage.set("mirrored", mirrored);
            stage.drag({195, 20}, {mirrored ? by : -by, 0});
            EXPECT_EQ(stage.log(), log) << by;
            EXPECT_NEAR(stage.get("offset", "row0").toDouble(), offset, 8) << by;
        }
}

TEST(SwipeRow, OnceOpenDeletesOrCloses) {
    Stage stage(rows);
    const auto offset = [&] { return stage.get("offset", "row0").toDouble(); };
    for (const QPoint elsewhere : {QPoint(100, 20), QPoint(100, 60), QPoint(200, 700)}) {
        stage.drag({195, 20}, {-80, 0});
        EXPECT_GT(offset(), 0);
        stage.click(elsewhere);
        EXPECT_EQ(offset(), 0);
        EXPECT_EQ(stage.log(), "") << "the tap that closes does nothing else";
    }
    stage.click({100, 60});
    EXPECT_EQ(stage.log(), "clicked 1");
    stage.drag({195, 20}, {-80, 0});
    stage.click({370, 20});
    EXPECT_EQ(stage.log(), "clicked 1delete 0");
}

TEST(SwipeRow, ClosesAsTheWheelMovesItsList) {
    Stage stage(R"(
        Sheet {
            objectName: 'sheet'; title: 'rows'; presented: true
            RowList {
                objectName: 'list'; anchors.fill: parent; model: 40
                delegate: SwipeRow {
                    required property int index
                    objectName: 'row' + index; focus: ListView.isCurrentItem
                    onActiveFocusChanged: if (activeFocus) ListView.view.currentIndex = index
                }
            }
        })");
    EXPECT_TRUE(Stage::soon([&] { return stage.get("position", "sheet") == 1; }));
    for (const int y : {-120, 120}) {
        const QPoint row = middle(stage.item("row5"));
        stage.drag(row, {-80, 0});
        EXPECT_GT(stage.get("offset", "row5").toDouble(), 0);
        const QPoint place = row + QPoint(0, y + 120);
        QWheelEvent wheel(place, place, {}, {0, y}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        wheel.setTimestamp(QTest::lastMouseTimestamp += 100);
        const double before = stage.get("contentY", "list").toDouble();
        QGuiApplication::sendEvent(stage.window(), &wheel);
        EXPECT_TRUE(Stage::soon([&] {
            return stage.get("contentY", "list").toDouble() != before &&
                   stage.get("offset", "row5").toDouble() == 0 &&
                   !stage.get("moving", "list").toBool();
        })) << y;
    }
}

TEST(SwipeRow, KeepsItsMenuFromTapsOfAFinger) {
    Stage stage(rows, false);
    // Qt keeps it in its list of devices.
    static QPointingDevice* const finger = QTest::createTouchDevice();
    QTest::touchEvent(stage.window(), finger).press(0, {100, 20});
    QTest::touchEvent(stage.window(), finger).release(0, {100, 20});
    EXPECT_EQ(stage.log(), "clicked 0");
    EXPECT_EQ(shown(*stage.window(), "Delete", false), nullptr);
    stage.click({100, 20}, Qt::RightButton);
    EXPECT_EQ(stage.log(), "clicked 0");
    EXPECT_TRUE(Stage::soon([&] { return shown(*stage.window(), "Delete", false); }));
}

TEST(SwipeRow, TakesATapForOneWhereTheAppWasBusy) {
    Stage stage(rows, false);
    QTest::mousePress(stage.window(), Qt::LeftButton, {}, {100, 20});
    for (QObject* handler : stage.item("row0")->findChildren<QObject*>())
        if (handler->inherits("QQuickTapHandler") && handler->property("pressed").toBool())
            QMetaObject::invokeMethod(handler, "longPressed");
    QTest::mouseRelease(stage.window(), Qt::LeftButton, {}, {100, 20});
    EXPECT_EQ(stage.log(), "clicked 0");
    stage.click({100, 60});
    EXPECT_EQ(stage.log(), "clicked 0clicked 1") << "no menu lies over the rows";
    QTest::mousePress(stage.window(), Qt::LeftButton, {}, {100, 20});
    EXPECT_TRUE(Stage::soon([&] { return shown(*stage.window(), "Delete", false); }));
    QTest::lastMouseTimestamp += 1000;
    QTest::mouseRelease(stage.window(), Qt::LeftButton, {}, {100, 20});
    EXPECT_EQ(stage.log(), "clicked 0clicked 1") << "a press that long is no tap";
}

TEST(SwipeRow, IsClosedForTheNextRecordThatItShows) {
    Stage stage(R"(
        ListView {
            anchors.fill: parent; reuseItems: true
            model: ListModel { id: records; ListElement { n: 0 } ListElement { n: 1 } ListElement { n: 2 } }
            delegate: SwipeRow {
                required property int index
                required property int n
                onClicked: log += 'clicked ' + n
                onDeleteRequested: records.remove(index)
            }
        })");
    stage.drag({195, 20}, {-300, 0});
    static_cast<void>(stage.window()->grabWindow());
    stage.click({100, 60});
    EXPECT_EQ(stage.log(), "clicked 2");
}

TEST(SwipeRow, ListensToTheKeyboardAndHasAMenu) {
    Stage stage(rows);
    stage.item("row1")->forceActiveFocus(Qt::MouseFocusReason);
    stage.press(Qt::Key_Delete);
    EXPECT_EQ(stage.log(), "") << "nobody saw which row it is";
    stage.press(Qt::Key_Return);
    stage.press(Qt::Key_Delete);
    EXPECT_EQ(stage.log(), "clicked 1delete 1");
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Return}) {
        QKeyEvent held(QEvent::KeyPress, key, {}, {}, true);
        QGuiApplication::sendEvent(stage.window(), &held);
    }
    EXPECT_EQ(stage.log(), "clicked 1delete 1");
    stage.press(Qt::Key_Menu);
    stage.press(Qt::Key_Down);
    stage.press(Qt::Key_Return);
    EXPECT_EQ(stage.log(), "clicked 1delete 1delete 1");
    stage.click({100, 20}, Qt::RightButton);
    stage.click(stage.showing("Delete"));
    EXPECT_EQ(stage.log(), "clicked 1delete 1delete 1delete 0");
}

} // namespace
} // namespace kovamo
