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

TEST(TransactionLine, HoldsNoMoreThanARowCanShow) {
    const QString longest(500, u'w'), pairs = QStringLiteral("👩‍🚀").repeated(200);
    const std::pair<QString, QString> cases[] = {
        {longest, longest},
        {longest + u'w', longest + u'…'},
        {QString(50'000'000, u'w'), longest + u'…'},
        {u'w' + pairs, u'w' + pairs.first(495) + u'…'},
        {QString(5000, QChar(0x301)), QString(500, QChar(0x301)) + u'…'},
        {QStringLiteral("a\nb\r\u2028c"), QStringLiteral("a b  c")}};
    for (const auto& [title, shown] : cases) {
        TransactionPresentation transaction;
        transaction.emoji = title;
        transaction.title = title;
        const TransactionLine line(transaction);
        EXPECT_EQ(line.title, shown);
        EXPECT_LE(line.emoji.size() + line.sentence.size(), 700);
    }
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
