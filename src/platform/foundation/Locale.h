#pragma once

#include <unicode/locid.h>

namespace kovamo {

/// The user's locale for money: `LC_ALL`, else `LC_MONETARY`, else `LANG`, read afresh from the
/// environment; the POSIX locale where none is set.
[[nodiscard]] icu::Locale moneyLocale();

/// The user's locale for dates, calendar and week: `LC_ALL`, else `LC_TIME`, else `LANG`, likewise.
[[nodiscard]] icu::Locale dateLocale();

} // namespace kovamo
