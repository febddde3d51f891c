#pragma once

#include "Clock.h"

#include <memory>
#include <unicode/calendar.h>

namespace kovamo {

/// A calendar day: the year counted through, without the eras or cycles that its calendar has, the
/// month and the day from 1. Some calendars put in a leap month that bears the number of the month
/// before.
struct CalendarDay {
    int year = 0;
    int month = 1;
    int day = 1;
    bool isLeapMonth = false;

    friend bool operator==(const CalendarDay&, const CalendarDay&) = default;
};

/// Takes the time zone that the device has now, by the system's rules, for all calendars and dates'
/// texts from then on. Every program calls it before it asks for the first. Returns whether it is
/// another one than before.
bool followHostTimeZone();

/// The user's current calendar and time zone, as they are when the value is made. Months and
/// hours out of range are normalised: month 13 is the first of the next year, hour -1 is 23:00 of
/// the day before. Where the clock is set back and shows an hour twice, the first one counts. An
/// instant that the calendar cannot build is a fatal error.
class Calendar {
  public:
    Calendar();

    /// The day that it is now.
    [[nodiscard]] CalendarDay today() const { return day(Clock::now()); }

    /// The day on which `instant` falls.
    [[nodiscard]] CalendarDay day(Instant instant) const;

    /// The instant at `hour` o'clock of `day`.
    [[nodiscard]] Instant instant(const CalendarDay& day, int hour = 0) const;

    /// `instant` moved to `day`, its time of day kept.
    [[nodiscard]] Instant moved(Instant instant, const CalendarDay& day) const;

    /// How many days the month of `day` has.
    [[nodiscard]] int daysInMonth(const CalendarDay& day) const;

    /// The day of the week on which `day` falls: 1 Sunday … 7 Saturday.
    [[nodiscard]] int weekday(const CalendarDay& day) const;

    /// The day of the week that the user's locale puts first: 1 Sunday … 7 Saturday.
    [[nodiscard]] int firstWeekday() const;

  private:
    void set(Instant instant) const;
    void set(const CalendarDay& day) const;
    [[nodiscard]] int field(UCalendarDateFields name) const;
    [[nodiscard]] Instant instantOfFields() const;

    // Working memory: every operation sets it before it reads it.
    std::unique_ptr<icu::Calendar> m_fields;
};

} // namespace kovamo
