#include "TimeFrame.h"

#include "platform/foundation/Calendar.h"

#include <algorithm>
#include <iterator>

namespace kovamo {

namespace {

/// 23:00 on the last day of the month before month `month` of `year`.
Instant monthEndBefore(const Calendar& calendar, int year, int month) {
    return calendar.instant({year, month, 1}, -1);
}

} // namespace

const NamedTimeFrame* named(TimeFrame timeFrame) {
    const auto* found = std::ranges::find(namedTimeFrames, timeFrame, &NamedTimeFrame::value);
    return found == std::end(namedTimeFrames) ? nullptr : found;
}

Period periodBounds(TimeFrame timeFrame) {
    const Calendar calendar;
    const Instant now = Clock::now();
    const CalendarDay today = calendar.day(now);
    return {calendar.instant({today.year, today.month, 1}),
            named(timeFrame)
                ? monthEndBefore(calendar, today.year, today.month + slotCount(timeFrame))
                : now};
}

int slotCount(TimeFrame timeFrame) {
    const NamedTimeFrame* frame = named(timeFrame);
    return frame ? frame->months : 1;
}

std::vector<MonthSlot> monthSlots(TimeFrame timeFrame) {
    const Calendar calendar;
    const CalendarDay today = calendar.today();
    const auto endBefore = [&](int i) {
        return monthEndBefore(calendar, today.year, today.month + i);
    };
    std::vector<MonthSlot> slots;
    for (int i = 1; i <= slotCount(timeFrame); ++i) {
        const Instant slotStart = endBefore(i - 1);
        slots.push_back({slotStart, endBefore(i), calendar.day(slotStart).month});
    }
    return slots;
}

} // namespace kovamo
