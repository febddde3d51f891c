#include "platform/emoji/EmojiRows.h"

#include <QSet>
#include <gtest/gtest.h>

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
    rows.setQuery(QStringLiteral("no such thing"));
    EXPECT_TRUE(rows.cursorText().isEmpty());
    EXPECT_FALSE(rows.moveCursorRow(-1));
}

} // namespace
} // namespace kovamo
