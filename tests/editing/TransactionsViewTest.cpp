#include "editing/TransactionsView.h"
#include "editing/TransactionLine.h"
#include "support/Book.h"

namespace kovamo {
namespace {

TEST(TransactionsView, DeletesEachRowOfTheListThatIsLeft) {
    Book book({{5}, {4}, {3}, {2}, {1}});
    TransactionsView screen(book.context);
    screen.remove({1, 0, 1});
    EXPECT_EQ(Book().amounts(), (std::vector{4, 2, 1}));
}

TEST(TransactionsView, BearsThatWhatItShowsIsDeletedElsewhere) {
    const Book elsewhere({{5}, {4}, {3}});
    Book book;
    book.context.setAutomaticallyMergesChangesFromParent(true);
    TransactionsView screen(book.context);
    elsewhere.elsewhere("DELETE FROM \"Transaction\" WHERE amount = 4");
    const QVariant line = screen.data(screen.index(1), TransactionsView::LineRole);
    EXPECT_EQ(line.value<TransactionLine>().title, QString());
    EXPECT_FALSE(screen.edit(1) || screen.edit(-1));
    static_cast<Transaction&>(screen.object(0)).setAmount(2);
    book.context.save();
    EXPECT_EQ(Book().amounts(), (std::vector{2, 3}));
}

TEST(TransactionsViewDeathTest, StopsOverARecordThatCannotBeShown) {
    Book book({{5}});
    book.all().at(0)->setEmoji({});
    const TransactionsView screen(book.context);
    EXPECT_DEATH((void)screen.data(screen.index(0), TransactionsView::LineRole),
                 "The transaction [0-9a-f-]{36} has no emoji");
}

} // namespace
} // namespace kovamo
