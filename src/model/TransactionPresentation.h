#pragma once

#include "platform/objectstore/Value.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <utility>
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

/// A transaction's copy that lists share: a screen has four lists of the same ones, which may be
/// thousands.
class SharedPresentation {
  public:
    SharedPresentation(std::shared_ptr<const TransactionPresentation> copy)
        : m_copy(std::move(copy)) {}

    const TransactionPresentation& operator*() const { return *m_copy; }
    const TransactionPresentation* operator->() const { return m_copy.get(); }
    operator const TransactionPresentation&() const { return *m_copy; }

    friend bool operator==(const SharedPresentation& a, const SharedPresentation& b) {
        return *a == *b;
    }

  private:
    std::shared_ptr<const TransactionPresentation> m_copy;
};

/// The values of a record with the fields of `transaction`, in the entity's order.
[[nodiscard]] std::vector<Value> valuesOf(const TransactionPresentation& transaction);

} // namespace kovamo

Q_DECLARE_TYPEINFO(kovamo::SharedPresentation, Q_RELOCATABLE_TYPE);

template<>
struct std::hash<kovamo::TransactionPresentation> {
    std::size_t operator()(const kovamo::TransactionPresentation& value) const noexcept;
};
