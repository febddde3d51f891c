#pragma once

#include "Clock.h"

#include <QString>
#include <cstdint>

namespace kovamo {

/// Writes whole numbers as the user's locale for money does: its digits and grouping, in currency
/// style its symbol, no fraction.
struct NumberFormatter {
    enum class Style { decimal, currency };

    Style numberStyle = Style::decimal;

    /// `number` as text. A formatter that yields none is a fatal error.
    [[nodiscard]] QString string(std::int64_t number) const;
};

/// Writes dates by a fixed pattern (such as "MM/dd") in the user's locale, calendar and zone. The
/// pattern's letters are those of Unicode's LDML.
struct DateFormatter {
    QString dateFormat;

    [[nodiscard]] QString string(Instant instant) const;
};

/// A whole amount as money in the user's locale: NumberFormatter in currency style.
[[nodiscard]] QString currencyText(std::int64_t amount);

/// A money text with its direction: "+ " or "- " before it.
[[nodiscard]] QString withDirection(bool isPositive, const QString& money);

/// A whole number in the digits and grouping of the user's locale for money, without a currency.
[[nodiscard]] QString numberText(std::int64_t number);

/// The digit 0 … 9 as the user's locale for money writes it.
[[nodiscard]] QString digitText(int digit);

/// `instant` with the fields of a skeleton (such as "y" or "yMMMd") in the order and form that
/// the user's locale prefers.
[[nodiscard]] QString localizedDateText(Instant instant, const QString& skeleton);

/// The day of `instant` in the user's zone, for names of files: "2026-11-23" in every locale.
[[nodiscard]] QString dayText(Instant instant);

/// The day and the time of `instant` likewise: "2026-11-23 10:00".
[[nodiscard]] QString minuteText(Instant instant);

} // namespace kovamo
