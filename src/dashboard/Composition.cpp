#include "Composition.h"

#include "ledger/Recurrence.h"
#include "platform/foundation/Formatters.h"

#include <algorithm>

namespace kovamo {

QString composition(const TransactionPresentation& transaction, std::span<const MonthSlot> slots) {
    if (transaction.isRecurring != true)
        return localizedDateText(required(transaction.id, transaction.startDate, "startDate"),
                                 QStringLiteral("yMMMd"));
    // None where the month has ended since the transaction was gathered.
    const std::int32_t times = std::max(1, timesCounted(transaction, slots));
    const QString each = currencyText(transaction.amount / times) + u", " +
                         transaction.recurringType.value_or(QString());
    return times == 1 ? each : numberText(times) + u" × " + each;
}

} // namespace kovamo
