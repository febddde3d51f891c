#include "ledger/Recurrence.h"
#include "support/Book.h"

#include <gtest/gtest.h>

namespace kovamo {
namespace {

constexpr std::int32_t none = -1;

std::int32_t contribution(const Transaction& transaction, TimeFrame timeFrame) {
    const auto value = expanded(transaction, monthSlots(timeFrame), Calendar());
    return value ? value->amount : none;
}

TEST(RecurrenceDeathTest, StopsOverAnOverflowAndAMissingDate) {
    Book book;
    Transaction& rich = book.add({2000000000, "2020-01-01", "monthly"});
    EXPECT_DEATH((void)contribution(rich, 3), "Arithmetic overflow: 2000000000");

    Transaction& yearly = book.add({1, "2020-04-10", "yearly", "2020-01-01"});
    yearly.setStartDate({});
    EXPECT_EQ(contribution(yearly, 3), none) << "it ended before its start is asked for";
    yearly.setEndDate(at("2030-01-01"));
    const std::string id = "0b5a2a4e-7a3a-4c1e-9f52-0d8f6f0c9a11";
    yearly.setId(QUuid::fromString(id));
    EXPECT_DEATH((void)contribution(yearly, 3), id + " has no startDate");
    yearly.setEndDate({});
    EXPECT_DEATH((void)contribution(yearly, 3), id + " has no endDate");
}

} // namespace
} // namespace kovamo
