#pragma once

#include "platform/objectstore/Value.h"

#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace kovamo {

class Transaction;

/// A copy of a transaction for lists, sums and charts. Two are equal when their `id`s are, present
/// or absent, whatever their other fields hold.
struct TransactionPresentation {
    std::optional<QUuid> id;
    std::optional<QString> title;
    std::optional<Instant> timestamp;
    std::optional<Instant> startDate;
    std::optional<Instant> endDate;
    std::optional<QString> recurringType;
    std::optional<bool> isRecurring;
    bool isPositive = false;
    std::optional<QString> emoji;
    std::int32_t amount = 0;

    TransactionPresentation() = default;

    /// The copy of a record.
    explicit TransactionPresentation(const Transaction& transaction);

    /// The copy of a record's values, in the entity's order.
    explicit TransactionPresentation(std::span<const Value> values);

    friend bool operator==(const TransactionPresentation& a, const TransactionPresentation& b) {
        return a.id == b.id;
    }
};

/// The values of a record with the fields of `transaction`, in the entity's order.
[[nodiscard]] std::vector<Value> valuesOf(const TransactionPresentation& transaction);

} // namespace kovamo

Q_DECLARE_TYPEINFO(kovamo::TransactionPresentation, Q_RELOCATABLE_TYPE);

template<>
struct std::hash<kovamo::TransactionPresentation> {
    std::size_t operator()(const kovamo::TransactionPresentation& value) const noexcept;
};
