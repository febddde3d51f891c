#include "TimeFrame.h"

#include "platform/foundation/Calendar.h"

namespace kovamo {

namespace {

/// 23:00 on the last day of the month before month `month` of `year`.
Instant monthEndBefore(const Calendar& calendar, int year, int month) {
    return calendar.instant({year, month, 1}, -1);
}

bool isWholeMonths(TimeFrame timeFrame) {
    return timeFrame >= 1 && timeFrame <= 3;
}

} // namespace

Period periodBounds(TimeFrame timeFrame) {
    const Calendar calendar;
    const Instant now = Clock::now();
    const auto [year, month, day] = calendar.day(now);
    return {calendar.instant({year, month, 1}),
            isWholeMonths(timeFrame) ? monthEndBefore(calendar, year, month + slotCount(timeFrame))
                                     : now};
}

int slotCount(TimeFrame timeFrame) {
    switch (timeFrame) {
    case 3:
        return 12;
    case 2:
        return 3;
    default:
        return 1;
    }
}

std::vector<MonthSlot> monthSlots(TimeFrame timeFrame) {
    const Calendar calendar;
    const auto [year, month, day] = calendar.day(Clock::now());
    std::vector<MonthSlot> slots;
    for (int i = 1; i <= slotCount(timeFrame); ++i) {
        const Instant slotStart = monthEndBefore(calendar, year, month + i - 1);
        slots.push_back(
            {slotStart, monthEndBefore(calendar, year, month + i), calendar.day(slotStart).month});
    }
    return slots;
}

} // namespace kovamo
