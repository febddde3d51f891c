#include "TransactionPresentation.h"

#include "Transaction.h"

#include <QHash>

namespace kovamo {

namespace {

template<typename T>
std::optional<T> optional(const Value& value) {
    const T* present = std::get_if<T>(&value);
    return present ? std::optional(*present) : std::nullopt;
}

template<typename T>
Value valueOf(const std::optional<T>& field) {
    return field ? Value(*field) : Value();
}

} // namespace

TransactionPresentation::TransactionPresentation(const Transaction& transaction)
    : TransactionPresentation(transaction.values()) {}

TransactionPresentation::TransactionPresentation(std::span<const Value> values)
    : id(optional<QUuid>(values[Transaction::Id])),
      title(optional<QString>(values[Transaction::Title])),
      timestamp(optional<Instant>(values[Transaction::Timestamp])),
      startDate(optional<Instant>(values[Transaction::StartDate])),
      endDate(optional<Instant>(values[Transaction::EndDate])),
      recurringType(optional<QString>(values[Transaction::RecurringType])),
      isRecurring(std::get<bool>(values[Transaction::IsRecurring])),
      isPositive(std::get<bool>(values[Transaction::IsPositive])),
      emoji(optional<QString>(values[Transaction::Emoji])),
      amount(std::get<std::int32_t>(values[Transaction::Amount])) {}

std::vector<Value> valuesOf(const TransactionPresentation& transaction) {
    std::vector<Value> values(Transaction::entity().attributes.size());
    values[Transaction::Amount] = transaction.amount;
    values[Transaction::Emoji] = valueOf(transaction.emoji);
    values[Transaction::EndDate] = valueOf(transaction.endDate);
    values[Transaction::Id] = valueOf(transaction.id);
    values[Transaction::IsPositive] = transaction.isPositive;
    values[Transaction::IsRecurring] = transaction.isRecurring == true;
    values[Transaction::RecurringType] = valueOf(transaction.recurringType);
    values[Transaction::StartDate] = valueOf(transaction.startDate);
    values[Transaction::Timestamp] = valueOf(transaction.timestamp);
    values[Transaction::Title] = valueOf(transaction.title);
    return values;
}

} // namespace kovamo

std::size_t std::hash<kovamo::TransactionPresentation>::operator()(
    const kovamo::TransactionPresentation& value) const noexcept {
    return value.id ? qHashMulti(0, 1, *value.id) : qHashMulti(0, 0);
}
