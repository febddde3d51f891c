#include "model/Transaction.h"
#include "model/PersistenceController.h"
#include "model/TransactionPresentation.h"
#include "support/World.h"

#include <QDir>
#include <gtest/gtest.h>
#include <unordered_set>

namespace kovamo {
namespace {

TEST(Transaction, CopiesEveryFieldIntoItsPresentation) {
    const World world("2024-05-15 10:00");
    auto& context = PersistenceController::shared().container->viewContext();
    auto& transaction = context.insert<Transaction>();
    const TransactionPresentation empty(transaction);
    EXPECT_FALSE(empty.id || empty.title || empty.timestamp || empty.startDate || empty.endDate ||
                 empty.recurringType || empty.emoji);
    EXPECT_EQ(empty.isRecurring, false);

    transaction.setId(QUuid::createUuid());
    transaction.setTitle(QStringLiteral("Rent"));
    transaction.setTimestamp(at("2024-01-01"));
    transaction.setStartDate(at("2024-01-02"));
    transaction.setEndDate(at("2024-01-03"));
    transaction.setRecurringType(QStringLiteral("yearly"));
    transaction.setIsRecurring(true);
    transaction.setIsPositive(true);
    transaction.setEmoji(QStringLiteral("🏠"));
    transaction.setAmount(1150);
    const TransactionPresentation copy(transaction);
    EXPECT_EQ(copy.id, transaction.id());
    EXPECT_EQ(copy.title, QStringLiteral("Rent"));
    EXPECT_EQ(copy.timestamp, at("2024-01-01"));
    EXPECT_EQ(copy.startDate, at("2024-01-02"));
    EXPECT_EQ(copy.endDate, at("2024-01-03"));
    EXPECT_EQ(copy.recurringType, QStringLiteral("yearly"));
    EXPECT_EQ(copy.isRecurring, true);
    EXPECT_TRUE(copy.isPositive);
    EXPECT_EQ(copy.emoji, QStringLiteral("🏠"));
    EXPECT_EQ(copy.amount, 1150);
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

TEST(PersistenceControllerDeathTest, StopsOverAStoreThatCannotBeLoaded) {
    const World world("2024-05-15 10:00");
    const QString store = QString::fromUtf8(qgetenv("XDG_DATA_HOME")) + u"/Kovamo/Kovamo.sqlite";
    QDir().mkpath(store);
    EXPECT_DEATH((void)PersistenceController::shared(),
                 "Fatal error: Unresolved error Is a directory, .*Kovamo.sqlite");
}

} // namespace
} // namespace kovamo
