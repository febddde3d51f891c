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

    explicit WallClock(const QByteArray& zone) {
        qputenv("TZ", zone);
        ::tzset();
    }

    /// The zone's distance from UTC.
    static std::chrono::seconds offset(Instant instant) {
        return std::chrono::seconds(fields(instant).tm_gmtoff);
    }

    static Month month(Instant instant) {
        const std::tm local = fields(instant);
        return {local.tm_year + 1900, local.tm_mon + 1};
    }

    /// When the clock shows `hours` after the month's first midnight: the first moment of two, and
    /// where the clock leaps over it, the moment that the offset before the leap gives.
    static Instant at(Month month, int hours) {
        using namespace std::chrono;
        const int months = month.year * 12 + month.month - 1;
        const Instant shown =
            sys_days(year(months / 12) / (months % 12 + 1) / 1) + std::chrono::hours(hours);
        const Instant before = shown - offset(shown - days(1));
        const Instant after = shown - offset(shown + days(1));
        const auto shows = [&](Instant instant) { return instant + offset(instant) == shown; };
        return shows(after) && !shows(before) ? after : before;
    }

    /// The bounds of the months of a time frame as of `now`, one more than months.
    static std::vector<Instant> bounds(Instant now, int timeFrame) {
        const auto [year, first] = month(now);
        std::vector<Instant> bounds;
        for (int i = 0; i <= (timeFrame == 3 ? 12 : timeFrame == 2 ? 3 : 1); ++i)
            bounds.push_back(at({year, first + i}, -1));
        return bounds;
    }

  private:
    static std::tm fields(Instant instant) {
        const std::time_t seconds =
            std::chrono::floor<std::chrono::seconds>(instant).time_since_epoch().count();
        std::tm local{};
        ::localtime_r(&seconds, &local);
        return local;
    }
};

} // namespace kovamo
