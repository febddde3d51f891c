#include "ZoneOffset.h"

namespace kovamo {

using namespace std::chrono;

namespace {

constexpr Instant first = sys_days(year(1) / January / 2);
constexpr Instant last = sys_days(year(9999) / December / 31);

} // namespace

ZoneOffset::ZoneOffset() : m_zone(icu::TimeZone::createDefault()) {}

minutes ZoneOffset::ask(Instant instant) const {
    std::int32_t raw = 0;
    std::int32_t saving = 0;
    UErrorCode status = U_ZERO_ERROR;
    m_zone->getOffset(static_cast<UDate>(instant.time_since_epoch().count()), false, raw, saving,
                      status);
    return floor<minutes>(milliseconds(raw + saving));
}

minutes ZoneOffset::at(Instant instant) {
    if (instant < first || instant >= last)
        return minutes(0);
    const auto day = floor<days>(instant);
    const auto known = m_ofDays.constFind(day.time_since_epoch().count());
    if (known != m_ofDays.constEnd())
        return *known;
    const minutes atStart = ask(day);
    if (atStart != ask(day + days(1) - milliseconds(1)))
        return ask(instant);
    return *m_ofDays.insert(day.time_since_epoch().count(), atStart);
}

Instant ZoneOffset::instantOf(Instant local) {
    if (local < first || local >= last)
        return local;
    // Where the clock is set back and shows an hour twice, the first one counts.
    const minutes before = at(local - hours(24));
    const Instant instant = local - before;
    return at(instant) == before ? instant : local - at(instant);
}

} // namespace kovamo
