#include "editing/TransactionsView.h"
#include "editing/TransactionLine.h"
#include "support/Book.h"

#include <gtest/gtest.h>

namespace kovamo {
namespace {

TransactionLine lineOf(const TransactionsView& screen, int row) {
    return screen.data(screen.index(row), TransactionsView::LineRole).value<TransactionLine>();
}

QStringList amounts(const TransactionsView& screen) {
    QStringList amounts;
    for (int row = 0; row < screen.rowCount(); ++row)
        amounts.append(lineOf(screen, row).amount);
    return amounts;
}

TEST(TransactionsView, ListsEverythingLargestFirst) {
    const World world("2024-05-15 10:00");
    Book book({{300},
               {500, "1999-01-01", nullptr, "1999-01-01", false},
               {1234, "2024-01-01", "monthly"}});
    const TransactionsView screen(book.context);
    EXPECT_EQ(amounts(screen), (QStringList{"+ $1,234", "- $500", "+ $300"}));
    EXPECT_EQ(lineOf(screen, 0).sentence, u"title, earning, $1,234, recurring");
}

TEST(TransactionsView, DeletesEachRowOfTheListThatIsLeft) {
    const World world("2024-05-15 10:00");
    Book book({{5}, {4}, {3}, {2}, {1}});
    TransactionsView screen(book.context);
    screen.remove({0, 1});
    EXPECT_EQ(amounts(screen), (QStringList{"+ $4", "+ $2", "+ $1"}));
    EXPECT_FALSE(book.context.hasChanges());
}

TEST(TransactionsViewDeathTest, StopsOverARecordThatCannotBeShown) {
    const World world("2024-05-15 10:00");
    Book book({{5}});
    book.context.fetch<Transaction>(Transaction::fetchRequest()).at(0)->setEmoji({});
    const TransactionsView screen(book.context);
    EXPECT_DEATH((void)lineOf(screen, 0), "The transaction [0-9a-f-]{36} has no emoji");
}

} // namespace
} // namespace kovamo
