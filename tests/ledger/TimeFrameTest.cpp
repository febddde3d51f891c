#include "ledger/TimeFrame.h"
#include "support/World.h"

#include <gtest/gtest.h>

namespace kovamo {
namespace {

TEST(TimeFrame, HasTheBoundsOfItsMonths) {
    const struct {
        const char* now;
        TimeFrame timeFrame;
        const char* start;
        const char* end;
        const char* zone = "Europe/Berlin";
        const char* locale = "en_US.UTF-8";
    } cases[] = {
        {"2024-05-15 10:00", 1, "2024-05-01", "2024-05-31 23:00"},
        {"2024-05-15 10:00", 2, "2024-05-01", "2024-07-31 23:00"},
        {"2024-05-15 10:00", 3, "2024-05-01", "2025-04-30 23:00"},
        {"2024-05-15 10:00", 0, "2024-05-01", "2024-05-15 10:00"},
        {"2024-05-15 10:00", -7, "2024-05-01", "2024-05-15 10:00"},
        {"2024-05-01 00:00", 1, "2024-05-01", "2024-05-31 23:00"},
        {"2024-05-31 23:59:59.999", 1, "2024-05-01", "2024-05-31 23:00"},
        {"2023-12-31 23:30", 2, "2023-12-01", "2024-02-29 23:00"},
        {"2022-12-05", 2, "2022-12-01", "2023-02-28 23:00"},
        // The clock changes inside of the months, and on the last day of one of them.
        {"2024-03-31 12:00", 1, "2024-03-01", "2024-03-31 23:00"},
        {"2024-10-27 12:00", 1, "2024-10-01", "2024-10-31 23:00"},
        {"2024-04-07 12:00", 1, "2024-04-01", "2024-04-30 23:00", "Australia/Sydney"},
        {"2023-09-30 12:00", 2, "2023-09-01", "2023-11-30 23:00", "Pacific/Auckland"},
        // Another calendar counts other years, or has other months: Khordad 1403.
        {"2024-05-15 10:00", 3, "2024-05-01", "2025-04-30 23:00", "Asia/Bangkok", "th_TH.UTF-8"},
        {"2024-06-01 10:00", 1, "2024-05-21", "2024-06-20 23:00", "Asia/Tehran", "fa_IR.UTF-8"},
    };
    for (const auto& [now, timeFrame, start, end, zone, locale] : cases) {
        const World world(now, zone, locale);
        const Period period = periodBounds(timeFrame);
        EXPECT_EQ(text(period.start), text(at(start))) << now << ' ' << timeFrame << ' ' << zone;
        EXPECT_EQ(text(period.end), text(at(end))) << now << ' ' << timeFrame << ' ' << zone;
    }
}

TEST(TimeFrame, HasSlotsThatMeetOneHourBeforeMidnight) {
    const World world("2024-11-20 08:00", "America/New_York");
    EXPECT_EQ(monthSlots(1).size(), 1U);
    EXPECT_EQ(monthSlots(2).size(), 3U);
    EXPECT_EQ(monthSlots(7).size(), 1U);
    const std::vector<MonthSlot> slots = monthSlots(3);
    ASSERT_EQ(slots.size(), 12U);
    EXPECT_EQ(text(slots[0].slotStart), text(at("2024-10-31 23:00")));
    EXPECT_EQ(text(slots[11].slotEnd), text(at("2025-10-31 23:00")));
    for (std::size_t i = 0; i < slots.size(); ++i) {
        EXPECT_EQ(slots[i].startMonth, (9 + static_cast<int>(i)) % 12 + 1);
        if (i > 0) {
            EXPECT_EQ(slots[i].slotStart, slots[i - 1].slotEnd);
        }
    }
}

} // namespace
} // namespace kovamo
