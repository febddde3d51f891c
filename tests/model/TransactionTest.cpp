#include "model/TransactionPresentation.h"

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

} // namespace
} // namespace kovamo
