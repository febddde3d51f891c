#pragma once

#include "Clock.h"

#include <QString>
#include <cstdint>

namespace kovamo {

/// A whole amount as money in the user's locale: currency style, its symbol, digits and grouping,
/// no fraction. A formatter that yields no text is a fatal error.
[[nodiscard]] QString currencyText(std::int64_t amount);

/// A money text with its direction: "+ " or "- " before it.
[[nodiscard]] QString withDirection(bool isPositive, const QString& money);

/// A whole number in the digits and grouping of the user's locale for money, without a currency.
[[nodiscard]] QString numberText(std::int64_t number);

/// The digit 0 … 9 as the user's locale for money writes it.
[[nodiscard]] QString digitText(int digit);

/// `instant` written by a fixed date pattern (such as "MM/dd") in the user's locale, calendar and
/// zone. The pattern's letters are those of Unicode's LDML.
[[nodiscard]] QString dateText(Instant instant, const QString& pattern);

/// `instant` with the fields of a skeleton (such as "y" or "yMMMd") in the order and form that
/// the user's locale prefers.
[[nodiscard]] QString localizedDateText(Instant instant, const QString& skeleton);

/// The day of `instant` in the user's zone, for names of files: "2026-11-23" in every locale.
[[nodiscard]] QString dayText(Instant instant);

/// The day and the time of `instant` likewise: "2026-11-23 10:00".
[[nodiscard]] QString minuteText(Instant instant);

} // namespace kovamo
