#include "platform/emoji/EmojiRows.h"

#include "support/Stage.h"

#include <QSet>

namespace kovamo {
namespace {

TEST(Emoji, IsFoundByNameOrByWhatMoneyIsFor) {
    const std::pair<const char*, const char*> table[] = {
        {"rent", "🏠"}, {"SALARY", "💼"}, {"hot bev", "☕"}, {"car", "🚗"}, {"t-shirt", "👕"},
    };
    for (const auto& [query, first] : table)
        EXPECT_EQ(foundEmoji(QString::fromUtf8(query)).value(0).text, QString::fromUtf8(first));
    EXPECT_TRUE(foundEmoji(QStringLiteral("car xyz")).isEmpty());
}

TEST(Emoji, RowsKeepTheCursorOnAnEmoji) {
    EmojiRows rows;
    rows.setColumns(7);
    QSet<QString> walked;
    for (int step = 0; step < 2000; ++step, rows.moveCursor(1))
        walked.insert(rows.cursorText());
    EXPECT_GT(walked.size(), 500);
    EXPECT_FALSE(walked.contains(QString()));
    EXPECT_FALSE(rows.moveCursorRow(1));
    const QString before = rows.cursorText();
    rows.setColumns(9);
    EXPECT_EQ(rows.cursorText(), before);
    rows.setQuery(QStringLiteral("no such thing"));
    EXPECT_TRUE(rows.cursorText().isEmpty());
    EXPECT_FALSE(rows.moveCursorRow(-1));
}

TEST(EmojiPanel, IsWalkedAndSearchedByTheKeyboard) {
    Stage stage("EmojiPanel { anchors.fill: parent; focus: true; onPicked: emoji => log += emoji }",
                true, "Kovamo.Emoji");
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Return, Qt::Key_Up, Qt::Key_Up,
                              Qt::Key_C, Qt::Key_A, Qt::Key_R, Qt::Key_Return})
        stage.press(key);
    EXPECT_EQ(stage.log(), "🛡️🚗");
}

TEST(EmojiPanel, KeepsItsPlaceWhateverItsWidth) {
    Stage stage("EmojiPanel { objectName: 'panel'; height: 800; width: 390 }", true,
                "Kovamo.Emoji");
    QQuickItem* list = findItem(*stage.window(), [](const QQuickItem& item) {
        return item.inherits("QQuickListView") && item.height() > 400;
    });
    const auto first = [list] {
        const int row = list->property("contentY").toInt() + 1;
        QQuickItem* item = nullptr;
        QMetaObject::invokeMethod(list, "itemAt", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(qreal, 0),
                                  Q_ARG(qreal, row));
        return item ? item->property("texts").toStringList().value(0) : QString();
    };
    list->setProperty("contentY", 3000);
    const QString before = first();
    EXPECT_FALSE(before.isEmpty());
    for (const int width : {500, 430, 620, 390})
        stage.set("width", width, "panel");
    EXPECT_EQ(first(), before);
}

TEST(EmojiPanel, MakesNoRowOutOfSight) {
    Stage stage("EmojiPanel { height: 800 }", true, "Kovamo.Emoji");
    int made = 0;
    static_cast<void>(findItem(*stage.window(), [&](const QQuickItem& item) {
        made += item.inherits("kovamo::EmojiText") ? 1 : 0;
        return false;
    }));
    EXPECT_LT(made, 20) << "the categories alone";
}

} // namespace
} // namespace kovamo
