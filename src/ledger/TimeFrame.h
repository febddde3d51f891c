#pragma once

#include "platform/foundation/Clock.h"

#include <vector>

namespace kovamo {

/// What the user looks at: 1 the current month, 2 three months, 3 twelve months from the current
/// one on; any other value is the current month up to now.
using TimeFrame = int;

/// A time frame that the user can choose.
struct NamedTimeFrame {
    TimeFrame value;
    int months;
    /// What it is called in a choice, and above its chart.
    const char* label;
    const char* title;
    /// What a command calls it.
    const char* word;
};

/// The time frames that the user can choose, the shortest first.
inline constexpr NamedTimeFrame namedTimeFrames[] = {
    {1, 1, "Current", "Current Month", "current"},
    {2, 3, "3 Months", "3 Months", "3"},
    {3, 12, "12 Months", "12 Months", "12"},
};

/// The one of them that `timeFrame` is; null for any other value.
[[nodiscard]] const NamedTimeFrame* named(TimeFrame timeFrame);

/// The days of a time frame: `start` is in it, `end` is not.
struct Period {
    Instant start;
    Instant end;
};

/// A month as recurrences see it, both ends in it: from 23:00 on the last day of the month before
/// to 23:00 on its own last day. `startMonth` is the month's number (from 1) at slotStart, so the
/// one before.
struct MonthSlot {
    Instant slotStart;
    Instant slotEnd;
    int startMonth = 1;
};

/// The bounds of `timeFrame` as of now, in the user's calendar and zone: from the first moment of
/// the current month to one hour before the end of the frame's last month, or to now where the
/// frame is none of the three.
[[nodiscard]] Period periodBounds(TimeFrame timeFrame);

/// How many months `timeFrame` has: 12, 3 or 1.
[[nodiscard]] int slotCount(TimeFrame timeFrame);

/// The months of `timeFrame` as of now, the current one first.
[[nodiscard]] std::vector<MonthSlot> monthSlots(TimeFrame timeFrame);

} // namespace kovamo
