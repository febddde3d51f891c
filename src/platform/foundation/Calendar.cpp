#include "Calendar.h"

#include "FatalError.h"
#include "Locale.h"
#include "SystemTimeZone.h"

namespace kovamo {

namespace {

void require(UErrorCode status) {
    if (U_FAILURE(status))
        fatalError(QStringLiteral("The calendar cannot build a date: %1")
                       .arg(QLatin1String(u_errorName(status))));
}

} // namespace

bool followHostTimeZone() {
    const std::unique_ptr<icu::TimeZone> named(icu::TimeZone::detectHostTimeZone());
    icu::UnicodeString id;
    auto host = std::make_unique<SystemTimeZone>(named->getID(id));
    const std::unique_ptr<icu::TimeZone> before(icu::TimeZone::createDefault());
    const bool isAnother = *host != *before;
    icu::TimeZone::adoptDefault(host.release());
    return isAnother;
}

Calendar::Calendar() {
    UErrorCode status = U_ZERO_ERROR;
    m_fields.reset(icu::Calendar::createInstance(dateLocale(), status));
    require(status);
    m_fields->setRepeatedWallTimeOption(UCAL_WALLTIME_FIRST);
}

CalendarDay Calendar::day(Instant instant) const {
    set(instant);
    return {field(UCAL_EXTENDED_YEAR), field(UCAL_MONTH) + 1, field(UCAL_DAY_OF_MONTH),
            field(UCAL_IS_LEAP_MONTH) != 0};
}

Instant Calendar::instant(const CalendarDay& day, int hour) const {
    set(day);
    m_fields->set(UCAL_HOUR_OF_DAY, hour);
    return instantOfFields();
}

Instant Calendar::moved(Instant instant, const CalendarDay& day) const {
    set(instant);
    const int timeOfDay = field(UCAL_MILLISECONDS_IN_DAY);
    set(day);
    m_fields->set(UCAL_MILLISECONDS_IN_DAY, timeOfDay);
    return instantOfFields();
}

int Calendar::daysInMonth(const CalendarDay& day) const {
    set(instant({day.year, day.month, 1, day.isLeapMonth}, 12));
    const int first = field(UCAL_JULIAN_DAY);
    // ICU's getActualMaximum takes a leap month for the one before it.
    UErrorCode status = U_ZERO_ERROR;
    m_fields->add(UCAL_MONTH, 1, status);
    require(status);
    return field(UCAL_JULIAN_DAY) - first;
}

int Calendar::weekday(const CalendarDay& day) const {
    set(instant(day));
    return field(UCAL_DAY_OF_WEEK);
}

int Calendar::firstWeekday() const {
    UErrorCode status = U_ZERO_ERROR;
    const int weekday = m_fields->getFirstDayOfWeek(status);
    require(status);
    return weekday;
}

void Calendar::set(Instant instant) const {
    UErrorCode status = U_ZERO_ERROR;
    m_fields->setTime(static_cast<UDate>(instant.time_since_epoch().count()), status);
    require(status);
}

void Calendar::set(const CalendarDay& day) const {
    m_fields->clear();
    m_fields->set(UCAL_EXTENDED_YEAR, day.year);
    m_fields->set(UCAL_MONTH, day.month - 1);
    m_fields->set(UCAL_IS_LEAP_MONTH, day.isLeapMonth);
    m_fields->set(UCAL_DAY_OF_MONTH, day.day);
}

int Calendar::field(UCalendarDateFields name) const {
    UErrorCode status = U_ZERO_ERROR;
    const int value = m_fields->get(name, status);
    require(status);
    return value;
}

Instant Calendar::instantOfFields() const {
    UErrorCode status = U_ZERO_ERROR;
    const UDate time = m_fields->getTime(status);
    require(status);
    return Instant(std::chrono::milliseconds(static_cast<std::int64_t>(time)));
}

} // namespace kovamo
