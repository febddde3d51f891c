#include "editing/TransactionsView.h"
#include "editing/TransactionLine.h"
#include "support/Book.h"

namespace kovamo {
namespace {

TEST(TransactionsView, DeletesEachRowOfTheListThatIsLeft) {
    Book book({{5}, {4}, {3}, {2}, {1}});
    TransactionsView screen(book.context);
    screen.remove({0, 1});
    EXPECT_EQ(Book().amounts(), (std::vector{4, 2, 1}));
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
