#include "support/Stage.h"

#include <QClipboard>
#include <QGuiApplication>

namespace kovamo {
namespace {

TEST(FormTextField, FollowsAnOwnerWhoFilters) {
    Stage stage(R"(
        property string amount
        function keep(text: string) { amount = text.replace(/[^0-9]/g, ''); }
        FormTextField { objectName: 'field'; text: amount; numeric: true; onEdited: text => keep(text) })");
    stage.click(stage.item("field"));
    const QQuickItem* focused = stage.window()->activeFocusItem();
    for (const char key : {'1', '2', 'a', ',', '5'}) {
        QTest::keyClick(stage.window(), key);
        EXPECT_EQ(focused->property("text"), stage.get("amount")) << key;
    }
    EXPECT_EQ(stage.get("amount"), QVariant("125"));
    stage.press(Qt::Key_Left);
    for (const char* typed : {"x", "9", " ", "-40", "٣"})
        type(typed);
    EXPECT_EQ(stage.get("amount"), QVariant("129405")) << "the caret left its place";
    EXPECT_EQ(focused->property("cursorPosition").toInt(), 5);
    EXPECT_TRUE(focused->property("inputMethodHints").toInt() & Qt::ImhDigitsOnly);
    stage.set("amount", "7");
    EXPECT_EQ(focused->property("text"), QVariant("7"));
}

TEST(FormTextField, TakesAnyText) {
    Stage stage(
        "property string title\nFormTextField { objectName: 'field'; text: title; placeholder: "
        "'Title'; onEdited: text => title = text }");
    EXPECT_TRUE(stage.showing("Title"));
    stage.click(stage.item("field"));
    for (const QString& text :
         {QStringLiteral(
              "<b>bold</b> **stars** &amp; مقهى ☕️ ‏שלום 👩‍👩‍👧‍👦"),
          QString(QStringLiteral("a\0b\nc\td").data(), 7), QStringLiteral(" "),
          QString(1'000'000, QLatin1Char('m'))}) {
        QGuiApplication::clipboard()->setText(text);
        QTest::keySequence(stage.window(), QKeySequence::SelectAll);
        QTest::keySequence(stage.window(), QKeySequence::Paste);
        EXPECT_TRUE(stage.get("title").toString() == text) << text.left(40).toStdString();
        EXPECT_EQ(stage.item("field")->height(), 44) << "one line";
    }
    stage.click(QPoint(390 - 16 - 9, 22));
    EXPECT_EQ(stage.get("title"), QVariant(""));
    const QString giant(50'000'000, QLatin1Char('w'));
    stage.set("title", giant);
    type(QStringLiteral("x"));
    EXPECT_TRUE(stage.get("title").toString() == giant) << "nothing is changed behind the end";
    const QQuickItem* input = stage.window()->activeFocusItem();
    EXPECT_LE(input->property("length").toInt(), 4'000);
}

TEST(FormTextField, HasAMenu) {
    Stage stage(
        "property string title: 'one two'\nFormTextField { objectName: 'field'; text: title; "
        "onEdited: text => title = text }");
    QClipboard* clipboard = QGuiApplication::clipboard();
    const auto choose = [&](const char* item, const char* title) {
        stage.click(stage.showing(item));
        EXPECT_EQ(stage.get("title").toString().toStdString(), title) << item;
    };
    const auto open = [&](Qt::Key key, Qt::KeyboardModifier modifier = Qt::NoModifier) {
        EXPECT_TRUE(Stage::soon([&] { return !shown(*stage.window(), "Undo", false); }));
        QTest::keyClick(stage.window(), key, modifier);
    };
    stage.click(middle(stage.item("field")), Qt::RightButton);
    choose("Cut", "one two");
    choose("Select All", "one two");
    open(Qt::Key_Menu);
    choose("Cut", "");
    EXPECT_EQ(clipboard->text(), "one two");
    open(Qt::Key_F10, Qt::ShiftModifier);
    choose("Copy", "");
    choose("Undo", "one two");
    clipboard->setText("new");
    open(Qt::Key_X);
    open(Qt::Key_Menu);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
        stage.press(key);
    EXPECT_EQ(stage.get("title").toString(), u"xnew") << "the keys pass over what can do nothing";
}

TEST(SegmentedControl, ProposesAndItsOwnerChooses) {
    Stage stage(R"(
        property string choice: 'Earning'
        SegmentedControl {
            objectName: 'control'; labels: ['Earning', 'Spending', 'Never']; selected: choice; width: 300
            onPicked: label => { log += label + ' '; if (label !== 'Never') choice = label; }
        })");
    stage.click(stage.showing("Spending"));
    EXPECT_EQ(stage.get("choice"), QVariant("Spending"));
    stage.click(stage.showing("Never"));
    EXPECT_EQ(stage.get("choice"), QVariant("Spending"));
    stage.press(Qt::Key_Tab);
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Left, Qt::Key_Right})
        stage.press(key);
    EXPECT_EQ(stage.log(), "Spending Never Earning Spending ");
}

TEST(GroupedForm, ShowsWhatHasTheFocusAndTalksToTheKeyboard) {
    Stage stage(R"(
        property bool on: false
        GroupedForm {
            objectName: 'form'; width: 390; height: 200
            FormSection {
                objectName: 'section'
                FormTextField { placeholder: 'Title' }
                ToggleRow { label: 'Recurring'; checked: on; onToggled: to => on = to }
                PickerRow { visible: on; labels: ['Monthly'] }
                FormRow { } FormRow { } FormRow { }
            }
            FormSection { FormButton { objectName: 'save'; text: 'Save'; onClicked: log += 'saved' } }
        })");
    const double height = stage.item("section")->height();
    stage.click(stage.showing("Recurring"));
    EXPECT_TRUE(stage.get("on").toBool());
    EXPECT_TRUE(Stage::soon([&] { return stage.item("section")->height() > height + 40; }));
    stage.item("save")->forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(Stage::soon([&] { return middle(stage.item("save")).y() < 200 - 22; }));
    stage.press(Qt::Key_Return);
    stage.click(stage.item("save"));
    stage.set("enabled", false, "save");
    stage.click(stage.item("save"));
    EXPECT_EQ(stage.log(), "savedsaved");
}

} // namespace
} // namespace kovamo
