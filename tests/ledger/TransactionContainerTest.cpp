#include "ledger/TransactionContainer.h"
#include "support/Book.h"

#include <gtest/gtest.h>

namespace kovamo {
namespace {

using Amounts = std::vector<std::int32_t>;

Amounts amounts(const TransactionContainer& container) {
    Amounts amounts;
    for (const TransactionPresentation& presentation : container.transactions())
        amounts.push_back(presentation.amount);
    return amounts;
}

TEST(TransactionContainer, TellsItsObserversBeforeEachChange) {
    Book book({{30, "2024-05-20"}, {50, "2024-05-21"}});
    TransactionContainer container;
    container.fetchTransactions(1, book.context);
    std::vector<std::size_t> seen;
    QObject::connect(&container, &TransactionContainer::objectWillChange,
                     [&] { seen.push_back(container.transactions().size()); });
    container.fetchTransactions(1, book.context);
    EXPECT_EQ(seen, (std::vector<std::size_t>{2, 0, 1, 2}));
    EXPECT_EQ(amounts(container), (Amounts{50, 30}));
}

TEST(TransactionContainer, SwallowsAFetchThatFails) {
    Book book({{30, "2024-05-20"}, {100, "2020-01-01", "monthly"}});
    book.elsewhere("ALTER TABLE \"Transaction\" RENAME COLUMN startDate TO gone");
    TransactionContainer container;
    container.fetchTransactions(1, book.context);
    EXPECT_EQ(amounts(container), (Amounts{100})) << "only the other fetch asks for it";
    book.elsewhere("DROP TABLE \"Transaction\"");
    container.fetchTransactions(1, book.context);
    EXPECT_EQ(amounts(container), (Amounts{}));
}

} // namespace
} // namespace kovamo
