#include "platform/objectstore/LiveFetch.h"
#include "support/Book.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <random>

namespace kovamo {
namespace {

class Rows : public LiveFetch {
  public:
    using LiveFetch::LiveFetch;
    [[nodiscard]] QVariant data(const QModelIndex&, int) const override { return {}; }
    [[nodiscard]] std::vector<std::int32_t> amounts() const {
        std::vector<std::int32_t> amounts;
        for (int row = 0; row < rowCount(); ++row)
            amounts.push_back(static_cast<const Transaction&>(object(row)).amount());
        return amounts;
    }
};

TEST(LiveFetch, FollowsEveryChangeAsAFreshFetchWould) {
    Book book;
    const FetchRequest request = transactions(Predicate(QStringLiteral("isPositive == YES")),
                                              {{QStringLiteral("amount"), false}});
    book.add({7});
    Rows rows(book.context, request);
    const QAbstractItemModelTester tester(&rows,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    std::mt19937 random(3);
    for (int step = 0; step < 400; ++step) {
        const auto amount = static_cast<std::int32_t>(random() % 20);
        const auto all = book.all();
        Transaction* any = all.empty() ? nullptr : all[random() % all.size()];
        if (!any || random() % 3 == 0)
            book.add({amount});
        else if (random() % 3 == 0)
            book.context.deleteObject(*any);
        else if (random() % 3 == 0)
            any->setIsPositive(random() % 2 == 0);
        else
            any->setAmount(amount);
        if (const auto turn = random() % 3; turn == 1)
            QCoreApplication::processEvents();
        else if (turn == 2)
            book.context.save();
    }
    book.context.save();
    EXPECT_GT(rows.rowCount(), 10);
    EXPECT_EQ(rows.amounts(), book.amounts(request));

    book.context.setAutomaticallyMergesChangesFromParent(true);
    book.elsewhere("INSERT INTO \"Transaction\" (amount, isPositive) VALUES (1000, 1)");
    (void)book.context.count(request);
    QCoreApplication::processEvents();
    EXPECT_EQ(rows.amounts().front(), 1000) << "another writer's record is not shown";
}

TEST(LiveFetch, OutlivesADeletionElsewhereBetweenTheMergeAndTheWriteOfASave) {
    (void)Book({{1}, {2}, {3}});
    Book book;
    QObject::connect(&book.context, &ManagedObjectContext::objectsDidChange,
                     [&] { book.elsewhere("DELETE FROM \"Transaction\" WHERE amount = 2"); });
    const FetchRequest request = transactions({}, {{QStringLiteral("amount")}});
    const Rows rows(book.context, request);
    book.add({4});
    book.context.save();
    EXPECT_EQ(rows.amounts(), (std::vector<std::int32_t>{1, 3, 4}));
    EXPECT_EQ(Book().amounts(), rows.amounts());
}

} // namespace
} // namespace kovamo
