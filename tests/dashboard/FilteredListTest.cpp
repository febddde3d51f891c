#include "dashboard/FilteredList.h"
#include "editing/TransactionLine.h"
#include "support/Book.h"

#include <QAbstractItemModelTester>
#include <gtest/gtest.h>
#include <random>

namespace kovamo {
namespace {

std::unique_ptr<TransactionContainer> loaded(Book& book, TimeFrame timeFrame) {
    auto container = std::make_unique<TransactionContainer>();
    container->fetchTransactions(timeFrame, book.context);
    return container;
}

TransactionLine lineOf(const FilteredList& list, int row) {
    return list.data(list.index(row), FilteredList::LineRole).value<TransactionLine>();
}

std::string rows(const FilteredList& list) {
    std::string rows;
    for (int row = 0; row < list.rowCount(); ++row) {
        rows += lineOf(list, row).amount.toStdString();
        rows += list.data(list.index(row), FilteredList::HasDividerRole).toBool() ? " | " : ".";
    }
    return rows;
}

TEST(FilteredList, ShowsSignedAmountsAndDividersBetweenThem) {
    const World world("2024-05-15 10:00");
    Book book({{7, "2024-05-02", nullptr, "2024-05-02", false}});
    FilteredList list;
    EXPECT_EQ(rows(list), "");
    list.setTransactionContainer(loaded(book, 1));
    EXPECT_EQ(rows(list), "- $7.");
    book.add({1200});
    book.add({100, "2020-01-01", "monthly"});
    list.setTransactionContainer(loaded(book, 2));
    EXPECT_EQ(rows(list), "+ $1,200 | + $300 | - $7.");
    EXPECT_EQ(lineOf(list, 1).sentence, u"title, earning, $300, recurring");
}

TEST(FilteredList, FollowsAnyChangeRowByRow) {
    const World world("2024-05-15 10:00");
    Book book({});
    FilteredList list;
    const QAbstractItemModelTester tester(&list,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    std::mt19937 random(11);
    for (int step = 0; step < 150; ++step) {
        const auto all = book.context.fetch<Transaction>(Transaction::fetchRequest());
        if (random() % 3 || all.empty())
            book.add({static_cast<std::int32_t>(random() % 50),
                      random() % 2 ? "2024-05-20" : "2024-06-20"});
        else
            book.context.deleteObject(*all[random() % all.size()]);
        const auto timeFrame = static_cast<TimeFrame>(random() % 4);
        list.setTransactionContainer(loaded(book, timeFrame));
        FilteredList fresh;
        fresh.setTransactionContainer(loaded(book, timeFrame));
        ASSERT_EQ(rows(list), rows(fresh)) << "after step " << step;
    }
}

} // namespace
} // namespace kovamo
