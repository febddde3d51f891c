#include "model/Transaction.h"
#include "model/PersistenceController.h"
#include "model/TransactionPresentation.h"
#include "support/World.h"

#include <QDir>
#include <gtest/gtest.h>
#include <unordered_set>

namespace kovamo {
namespace {

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
