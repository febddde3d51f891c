#include "SystemTimeZone.h"

#include <cmath>
#include <ctime>
#include <unordered_map>

namespace kovamo {

namespace {

using std::chrono::days;
using std::chrono::milliseconds;

milliseconds askedOffset(Instant instant) {
    const std::time_t seconds =
        std::chrono::floor<std::chrono::seconds>(instant).time_since_epoch().count();
    std::tm local{};
    // Where the year is beyond what the C library counts, local time is UTC.
    return std::chrono::seconds(::localtime_r(&seconds, &local) ? local.tm_gmtoff : 0);
}

std::int32_t icuOffset(milliseconds offset) {
    return static_cast<std::int32_t>(offset.count());
}

} // namespace

struct SystemTimeZone::Days {
    // The offsets of the days in UTC on which the clock is not changed.
    std::unordered_map<std::int64_t, milliseconds> offsets;
};

SystemTimeZone::SystemTimeZone(const icu::UnicodeString& id)
    : TimeZone(id), m_days(std::make_shared<Days>()) {
    ::tzset();
}

SystemTimeZone::~SystemTimeZone() = default;

milliseconds SystemTimeZone::offset(Instant instant) const {
    const auto day = std::chrono::floor<days>(instant);
    const std::int64_t number = day.time_since_epoch().count();
    const auto known = m_days->offsets.find(number);
    if (known != m_days->offsets.end())
        return known->second;
    const milliseconds first = askedOffset(day);
    if (first != askedOffset(day + days(1) - milliseconds(1)))
        return askedOffset(instant);
    constexpr std::size_t most = 10'000;
    if (m_days->offsets.size() >= most)
        m_days->offsets.clear();
    m_days->offsets.emplace(number, first);
    return first;
}

milliseconds SystemTimeZone::localOffset(Instant wall) const {
    const milliseconds before = offset(wall - days(1));
    const milliseconds after = offset(wall + days(1));
    return offset(wall - after) == after ? after : before;
}

void SystemTimeZone::getOffset(UDate date, UBool isLocal, std::int32_t& raw, std::int32_t& saving,
                               UErrorCode& status) const {
    if (U_FAILURE(status))
        return;
    const Instant instant(milliseconds(static_cast<std::int64_t>(std::floor(date))));
    raw = icuOffset(isLocal ? localOffset(instant) : offset(instant));
    saving = 0;
}

std::int32_t SystemTimeZone::getOffset(std::uint8_t era, std::int32_t year, std::int32_t month,
                                       std::int32_t dayOfMonth, std::uint8_t,
                                       std::int32_t timeOfDay, UErrorCode& status) const {
    if (U_FAILURE(status))
        return 0;
    constexpr std::uint8_t beforeChrist = 0;
    const std::chrono::year_month_day date(std::chrono::year(era == beforeChrist ? 1 - year : year),
                                           std::chrono::month(static_cast<unsigned>(month + 1)),
                                           std::chrono::day(static_cast<unsigned>(dayOfMonth)));
    return icuOffset(localOffset(std::chrono::sys_days(date) + milliseconds(timeOfDay)));
}

std::int32_t SystemTimeZone::getOffset(std::uint8_t era, std::int32_t year, std::int32_t month,
                                       std::int32_t dayOfMonth, std::uint8_t weekday,
                                       std::int32_t timeOfDay, std::int32_t,
                                       UErrorCode& status) const {
    return getOffset(era, year, month, dayOfMonth, weekday, timeOfDay, status);
}

std::int32_t SystemTimeZone::getRawOffset() const {
    return icuOffset(offset(Clock::now()));
}

UClassID SystemTimeZone::getDynamicClassID() const {
    static char identity = 0;
    return &identity;
}

} // namespace kovamo
