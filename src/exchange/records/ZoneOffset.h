#pragma once

#include "platform/foundation/Clock.h"

#include <QHash>
#include <memory>
#include <unicode/timezone.h>

namespace kovamo {

/// The offset from UTC of the time zone that the device has when the value is made.
class ZoneOffset {
  public:
    ZoneOffset();

    /// The offset in whole minutes at `instant`; zero beyond the years 1 to 9999.
    [[nodiscard]] std::chrono::minutes at(Instant instant);

    /// The instant at which the clock on the wall shows `local`, counted as if it were UTC.
    [[nodiscard]] Instant instantOf(Instant local);

  private:
    [[nodiscard]] std::chrono::minutes ask(Instant instant) const;

    std::unique_ptr<icu::TimeZone> m_zone;
    // By the day in UTC, for days on which it does not change.
    QHash<std::int64_t, std::chrono::minutes> m_ofDays;
};

} // namespace kovamo
