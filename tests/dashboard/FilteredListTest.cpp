#include "dashboard/FilteredList.h"
#include "editing/TransactionLine.h"
#include "support/Book.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <random>

namespace kovamo {
namespace {

std::unique_ptr<TransactionContainer> loaded(Book& book, TimeFrame timeFrame) {
    auto container = std::make_unique<TransactionContainer>();
    container->fetchTransactions(timeFrame, book.context);
    return container;
}

std::string rows(const FilteredList& list) {
    std::string rows;
    for (int row = 0; row < list.rowCount(); ++row) {
        const auto line = list.data(list.index(row), FilteredList::LineRole);
        rows += line.value<TransactionLine>().sentence.toStdString();
        rows += list.data(list.index(row), FilteredList::HasDividerRole).toBool() ? " | " : ".";
    }
    return rows;
}

TEST(FilteredList, FollowsAnyChangeRowByRow) {
    Book book;
    FilteredList list;
    const QAbstractItemModelTester tester(&list,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    std::mt19937 random(11);
    TransactionContainer* shown = nullptr;
    for (int step = 0; step < 150; ++step) {
        const auto all = book.all();
        if (random() % 3 || all.empty())
            book.add({static_cast<std::int32_t>(random() % 50),
                      random() % 2 ? "2024-05-20" : "2024-06-20"});
        else
            book.context.deleteObject(*all[random() % all.size()]);
        const auto timeFrame = static_cast<TimeFrame>(random() % 4);
        if (step % 2) {
            shown->fetchTransactions(timeFrame, book.context);
            QCoreApplication::sendPostedEvents();
        } else {
            auto container = loaded(book, timeFrame);
            shown = container.get();
            list.setTransactionContainer(std::move(container));
        }
        FilteredList fresh;
        fresh.setTransactionContainer(loaded(book, timeFrame));
        ASSERT_EQ(rows(list), rows(fresh)) << "after step " << step;
        EXPECT_EQ(QString::fromStdString(rows(list)).count(u" | "),
                  std::max(0, list.rowCount() - 1));
    }
}

TEST(FilteredList, SaysHowOftenAndWhen) {
    Book book({{100, "2024-05-20"}, {30, "2024-05-02", "monthly"}, {20, "2019-06-04", "yearly"}});
    FilteredList list;
    list.setTransactionContainer(loaded(book, 2));
    EXPECT_EQ(rows(list), "title, earning, $100, May 20, 2024 | "
                          "title, earning, $90, monthly, 3 times | "
                          "title, earning, $20, yearly.");
}

} // namespace
} // namespace kovamo
