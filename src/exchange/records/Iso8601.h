#pragma once

#include "ZoneOffset.h"

#include <optional>
#include <string>
#include <string_view>

namespace kovamo {

/// Appends an instant in ISO 8601, to the millisecond and with the offset from UTC:
/// "2024-05-15T10:00:00.000+02:00". A year beyond four digits gets its sign and all its digits, as
/// the expanded representation does. Every instant reads back as itself.
void appendIso8601(std::string& text, Instant instant, ZoneOffset& zone);

/// The instant of such a text. The fraction, the seconds, the offset and the time may each be
/// missing: without an offset it is the user's own time, without a time noon of the day.
[[nodiscard]] std::optional<Instant> instantOfIso8601(std::string_view text, ZoneOffset& zone);

} // namespace kovamo
