#include "TransactionPresentation.h"

#include "Transaction.h"

#include <QHash>

namespace kovamo {

TransactionPresentation::TransactionPresentation(const Transaction& transaction)
    : id(transaction.id()), title(transaction.title()), timestamp(transaction.timestamp()),
      startDate(transaction.startDate()), endDate(transaction.endDate()),
      recurringType(transaction.recurringType()), isRecurring(transaction.isRecurring()),
      isPositive(transaction.isPositive()), emoji(transaction.emoji()),
      amount(transaction.amount()) {}

} // namespace kovamo

std::size_t std::hash<kovamo::TransactionPresentation>::operator()(
    const kovamo::TransactionPresentation& value) const noexcept {
    return value.id ? qHashMulti(0, 1, *value.id) : qHashMulti(0, 0);
}
