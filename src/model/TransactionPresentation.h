#pragma once

#include "platform/foundation/Clock.h"

#include <QString>
#include <QUuid>
#include <functional>
#include <optional>

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

    friend bool operator==(const TransactionPresentation& a, const TransactionPresentation& b) {
        return a.id == b.id;
    }
};

} // namespace kovamo

Q_DECLARE_TYPEINFO(kovamo::TransactionPresentation, Q_RELOCATABLE_TYPE);

template<>
struct std::hash<kovamo::TransactionPresentation> {
    std::size_t operator()(const kovamo::TransactionPresentation& value) const noexcept;
};
