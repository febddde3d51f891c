#include "editing/TransactionsView.h"
#include "editing/TransactionLine.h"
#include "platform/foundation/Formatters.h"
#include "support/Book.h"
#include "support/FastQueue.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <random>

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
        {u"ww" + pairs, u"ww" + pairs.first(495) + u'…'},
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

std::vector<Value> valuesOf(const Transaction& record) {
    return {record.values().begin(), record.values().end()};
}

TEST(TransactionsView, TakesDeletionsBackAsTheyWere) {
    FastQueue queue;
    Book book({{5}, {4, "2019-03-01", "monthly"}, {3}, {2}});
    book.all()[2]->setEndDate({});
    book.context.save();
    TransactionsView screen(book.context);
    const auto salary = valuesOf(*book.all()[1]), absent = valuesOf(*book.all()[2]);
    screen.remove({1});
    const QString sentence = screen.deleted()->sentence();
    EXPECT_EQ(sentence, u"title, monthly since 2019, deleted");
    queue.advance(std::chrono::milliseconds(7999));
    EXPECT_EQ(screen.deleted()->sentence(), sentence);
    screen.remove({1});
    queue.advance(std::chrono::milliseconds(7999));
    EXPECT_EQ(screen.deleted()->sentence(), u"title deleted") << "its own eight seconds";
    queue.advance(std::chrono::milliseconds(1));
    EXPECT_EQ(screen.deleted()->sentence(), QString());

    book.elsewhere("CREATE TRIGGER full BEFORE INSERT ON \"Transaction\" BEGIN "
                   "SELECT RAISE(FAIL, 'full'); END");
    EXPECT_EQ(screen.takeBack(), -1);
    EXPECT_EQ(screen.deleted()->sentence(), u"title could not be brought back");
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(screen.rowCount(), 2) << "what is not stored is not shown";
    book.elsewhere("DROP TRIGGER full");
    EXPECT_EQ(screen.takeBack(), 1);
    EXPECT_EQ(screen.takeBack(), 1);
    EXPECT_EQ(screen.takeBack(), -1) << "nothing is left";
    const Book reopened;
    const auto stored = reopened.all(transactions({}, {{QStringLiteral("amount"), false}}));
    EXPECT_EQ(valuesOf(*stored.at(1)), salary);
    EXPECT_EQ(valuesOf(*stored.at(2)), absent);
    EXPECT_EQ(stored.size(), 4U);
}

TEST(TransactionsView, SearchFollowsEveryChange) {
    FastQueue queue;
    Book book;
    TransactionsView screen(book.context);
    TransactionSearch& search = *screen.search();
    const QAbstractItemModelTester tester(&search,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    std::mt19937 random(5);
    for (int step = 0; step < 300; ++step) {
        const auto all = book.all();
        if (random() % 3 || all.empty())
            book.add({static_cast<std::int32_t>(random() % 50)});
        else if (random() % 2)
            all[random() % all.size()]->setAmount(static_cast<std::int32_t>(random() % 50));
        else
            book.context.deleteObject(*all[random() % all.size()]);
        book.context.save();
        if (step % 40 == 10)
            search.open();
        if (search.isOpen() && step % 7 == 0)
            search.setQuery(QString::number(random() % 5));
        if (step % 11 == 0)
            queue.advance(std::chrono::milliseconds(1));
        if (step % 40 == 39)
            search.close();
        std::vector<ObjectID> expected;
        std::int64_t sum = 0;
        for (int row = 0; row < screen.rowCount(); ++row) {
            const auto& record = static_cast<Transaction&>(screen.object(row));
            if (!QString::number(record.amount()).startsWith(search.query()))
                continue;
            expected.push_back(record.objectID());
            sum += record.amount();
        }
        ASSERT_EQ(search.rowCount(), std::ssize(expected)) << step;
        for (int row = 0; row < search.rowCount(); ++row)
            ASSERT_EQ(search.objectID(row), expected[static_cast<std::size_t>(row)]) << step;
        if (!search.query().isEmpty() && sum > 0) {
            EXPECT_EQ(search.summary(),
                      QString::number(expected.size()) + u" found, + " + currencyText(sum));
        }
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
