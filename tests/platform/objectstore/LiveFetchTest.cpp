#include "platform/objectstore/LiveFetch.h"
#include "Ledger.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <gtest/gtest.h>

namespace kovamo {
namespace {

class Rows : public LiveFetch {
  public:
    using LiveFetch::LiveFetch;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole)
            return {};
        return static_cast<const Entry&>(object(index.row())).amount();
    }
    [[nodiscard]] std::vector<std::int32_t> amounts() const {
        std::vector<std::int32_t> amounts;
        for (int row = 0; row < rowCount(); ++row)
            amounts.push_back(data(index(row), Qt::DisplayRole).toInt());
        return amounts;
    }
};

TEST(LiveFetch, FollowsEveryChangeAsAFreshFetchWould) {
    const World world("2024-05-15 10:00");
    Ledger ledger;
    const FetchRequest request =
        entries(Predicate(QStringLiteral("flag == YES")), {{QStringLiteral("amount"), false}});
    Rows rows(ledger.context, request);
    const QAbstractItemModelTester tester(&rows,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    std::mt19937 random(3);
    const auto any = [&] {
        const auto all = ledger.context.fetch<Entry>(entries());
        return all.empty() ? nullptr : all[random() % all.size()];
    };
    for (int step = 0; step < 400; ++step) {
        const auto amount = static_cast<std::int32_t>(random() % 20);
        Entry* entry = any();
        if (!entry || random() % 3 == 0)
            ledger.add(amount).set(Entry::Flag, true);
        else if (random() % 3 == 0)
            ledger.context.deleteObject(*entry);
        else if (random() % 3 == 0)
            entry->set(Entry::Flag, random() % 2 == 0);
        else
            entry->set(Entry::Amount, amount);
        switch (random() % 3) {
        case 0:
            break;
        case 1:
            QCoreApplication::processEvents();
            break;
        default:
            ledger.context.save();
        }
    }
    ledger.context.save();
    EXPECT_GT(rows.rowCount(), 10);
    EXPECT_EQ(rows.amounts(), ledger.amounts(request));

    ledger.context.setAutomaticallyMergesChangesFromParent(true);
    ledger.elsewhere("INSERT INTO Entry (amount, flag) VALUES (1000, 1)");
    (void)ledger.context.count(request);
    QCoreApplication::processEvents();
    EXPECT_EQ(rows.amounts().front(), 1000) << "another writer's record is not shown";
}

} // namespace
} // namespace kovamo
