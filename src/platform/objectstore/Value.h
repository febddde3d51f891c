#pragma once

#include "platform/foundation/Clock.h"

#include <QString>
#include <QUuid>
#include <cstdint>
#include <variant>

namespace kovamo {

/// The value of one attribute of a record; the first alternative is an absent value.
using Value = std::variant<std::monostate, std::int32_t, bool, QString, Instant, QUuid>;

/// What an attribute holds. The order is that of the alternatives of Value.
enum class AttributeType : std::size_t { integer32 = 1, boolean, string, date, uuid };

[[nodiscard]] inline bool isAbsent(const Value& value) {
    return value.index() == 0;
}

/// The order in which the store sorts: absent values first, texts by their UTF-8 bytes.
/// Requires: both values absent or of one attribute.
[[nodiscard]] std::strong_ordering compare(const Value& a, const Value& b);

} // namespace kovamo
