#include "ledger/TransactionContainer.h"
#include "support/Book.h"

#include <unordered_set>

namespace kovamo {
namespace {

using Amounts = std::vector<std::int32_t>;

Amounts amounts(const TransactionContainer& container) {
    Amounts amounts;
    for (const TransactionPresentation& presentation : container.transactions())
        amounts.push_back(presentation.amount);
    return amounts;
}

TEST(TransactionPresentation, IsEqualAndHashesByIdAlone) {
    TransactionPresentation none, noneEither, one, other;
    noneEither.amount = 5;
    one.id = other.id = QUuid::createUuid();
    other.amount = 12;
    EXPECT_EQ(none, noneEither);
    EXPECT_EQ(one, other);
    EXPECT_NE(none, one);
    EXPECT_EQ((std::unordered_set{none, noneEither, one, other}).size(), 2U);
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

TEST(TransactionContainerDeathTest, StopsOverAnOverflowAndAMissingDate) {
    Book book({{2000000000, "2020-01-01", "monthly"}});
    TransactionContainer container;
    const auto fetch = [&] { container.fetchTransactions(3, book.context); };
    EXPECT_DEATH(fetch(), "Arithmetic overflow: 2000000000");

    Transaction& yearly = *book.all()[0];
    yearly.setRecurringType(QStringLiteral("yearly"));
    yearly.setEndDate(at("2020-01-01"));
    yearly.setStartDate({});
    fetch(); // it ended before its start is asked for
    EXPECT_EQ(amounts(container), (Amounts{}));
    yearly.setEndDate(at("2030-01-01"));
    const std::string id = "0b5a2a4e-7a3a-4c1e-9f52-0d8f6f0c9a11";
    yearly.setId(QUuid::fromString(id));
    EXPECT_DEATH(fetch(), id + " has no startDate");
    yearly.setEndDate({});
    EXPECT_DEATH(fetch(), id + " has no endDate");
}

} // namespace
} // namespace kovamo
