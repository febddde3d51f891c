#pragma once

#include <QString>
#include <optional>

namespace kovamo {

/// How often a recurring transaction falls due.
enum class RecurringType { monthly, yearly };

/// The text by which records hold a type: "monthly" or "yearly".
[[nodiscard]] QString storedName(RecurringType type);

/// The type that a record holds as `storedName`, spelt exactly so; nothing for any other text.
[[nodiscard]] std::optional<RecurringType> recurringType(const std::optional<QString>& storedName);

} // namespace kovamo
