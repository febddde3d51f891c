#pragma once

#include "platform/foundation/Clock.h"

#include <QByteArray>
#include <ctime>
#include <vector>

namespace kovamo {

/// Dates of a zone as the C library and the Gregorian rules give them, to hold the calendar
/// against. Sets the process's TZ.
class WallClock {
  public:
    struct Month {
        int year;
        int month;
    };
    struct Slot {
        Instant start;
        Instant end;
    };

    explicit WallClock(const QByteArray& zone) {
        qputenv("TZ", zone);
        ::tzset();
    }

    /// The zone's distance from UTC.
    [[nodiscard]] static std::chrono::seconds offset(Instant instant) {
        return std::chrono::seconds(fields(instant).tm_gmtoff);
    }

    [[nodiscard]] static Month month(Instant instant) {
        const std::tm local = fields(instant);
        return {local.tm_year + 1900, local.tm_mon + 1};
    }

    /// When the clock shows `hours` after the month's first midnight: the later moment of two, and
    /// where the clock leaps over it, the moment that the offset before the leap gives.
    [[nodiscard]] static Instant at(Month month, int hours) {
        using namespace std::chrono;
        const int months = month.year * 12 + month.month - 1;
        const Instant shown =
            sys_days(year(months / 12) / (months % 12 + 1) / 1) + std::chrono::hours(hours);
        const Instant before = shown - offset(shown - days(1));
        const Instant after = shown - offset(shown + days(1));
        const auto shows = [&](Instant instant) { return instant + offset(instant) == shown; };
        if (shows(before) && shows(after))
            return std::max(before, after);
        return shows(after) ? after : before;
    }

    /// The months of a time frame as of `now`.
    [[nodiscard]] static std::vector<Slot> slots(Instant now, int timeFrame) {
        const auto [year, first] = month(now);
        std::vector<Slot> slots;
        for (int i = 0; i < (timeFrame == 3 ? 12 : timeFrame == 2 ? 3 : 1); ++i)
            slots.push_back({at({year, first + i}, -1), at({year, first + i + 1}, -1)});
        return slots;
    }

  private:
    [[nodiscard]] static std::tm fields(Instant instant) {
        const auto whole = std::chrono::floor<std::chrono::seconds>(instant);
        const std::time_t seconds = whole.time_since_epoch().count();
        std::tm local{};
        ::localtime_r(&seconds, &local);
        return local;
    }
};

} // namespace kovamo
