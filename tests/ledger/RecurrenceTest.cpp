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

TEST(Recurrence, ContributesWhatItsMonthsSay) {
    const World world("2024-05-15 10:00");
    Book book({});
    const struct {
        Line line;
        TimeFrame timeFrame;
        std::int32_t expected;
    } cases[] = {
        {{100, "2020-01-01", "monthly", "2025-12-01"}, 3, 1200},
        {{50, "2024-06-10", "monthly"}, 2, 100},
        {{50, "2024-05-10", "monthly", "2024-05-20"}, 3, 50},
        {{50, "2020-01-01", "monthly", "2024-04-30 22:59"}, 3, none},
        // Both ends of a slot are in it; an instant may be in two.
        {{50, "2020-01-01", "monthly", "2024-04-30 23:00"}, 1, 50},
        {{50, "2024-04-30 23:00", "monthly"}, 1, 50},
        {{50, "2024-05-31 23:00", "monthly"}, 1, 50},
        {{50, "2024-05-31 23:00", "monthly"}, 2, 150},
        {{50, "2024-05-31 23:00:00.001", "monthly"}, 1, none},
        // An end before the start does not undo a start inside of the slot.
        {{50, "2024-05-10", "monthly", "2024-01-01"}, 1, 50},
        // A yearly one counts in the month after the one it started in, its start in the future
        // or not, once at the most, and only until it ends.
        {{70, "2020-04-10", "yearly", "2030-04-10"}, 1, 70},
        {{70, "2020-05-10", "yearly", "2030-04-10"}, 1, none},
        {{70, "2028-04-10", "yearly", "2030-04-10"}, 1, 70},
        {{70, "2020-03-31 23:59", "yearly", "2030-04-10"}, 2, none},
        {{70, "2020-04-10", "yearly", "2030-04-10"}, 3, 70},
        {{70, "2020-04-10", "yearly", "2024-04-30 23:00"}, 1, none},
        {{70, "2020-04-10", "yearly", "2024-04-30 23:00:00.001"}, 1, 70},
        // Only these spellings recur.
        {{70, "2020-04-10", "Monthly"}, 3, none},
        {{70, "2020-04-10", "weekly"}, 3, none},
        // The largest product that fits.
        {{178956970, "2020-01-01", "monthly"}, 3, 2147483640},
    };
    for (const auto& [line, timeFrame, expected] : cases)
        EXPECT_EQ(contribution(book.add(line), timeFrame), expected)
            << line.recurringType << ' ' << line.start << " to " << line.end << ", " << timeFrame;
}

TEST(Recurrence, KeepsEveryFieldButTheAmount) {
    const World world("2024-05-15 10:00");
    Book book({});
    const Transaction& transaction = book.add({50, "2020-01-01", "monthly", "2030-01-01", false});
    const auto value = expanded(transaction, monthSlots(2), Calendar());
    ASSERT_TRUE(value);
    EXPECT_EQ(value->id, transaction.id());
    EXPECT_EQ(value->startDate, at("2020-01-01"));
    EXPECT_FALSE(value->isPositive);
}

TEST(RecurrenceDeathTest, StopsOverAnOverflowAndAMissingDate) {
    const World world("2024-05-15 10:00");
    Book book({});
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
