#include "Recurrence.h"

#include "model/RecurringType.h"
#include "platform/foundation/CheckedArithmetic.h"

#include <algorithm>

namespace kovamo {

namespace {

bool fallsYearly(const TransactionPresentation& transaction, std::span<const MonthSlot> slots,
                 const Calendar& calendar) {
    const Instant end = required(transaction.id, transaction.endDate, "endDate");
    return std::ranges::any_of(slots, [&](const MonthSlot& slot) {
        if (end <= slot.slotStart)
            return false;
        const Instant start = required(transaction.id, transaction.startDate, "startDate");
        return calendar.day(start).month == slot.startMonth;
    });
}

} // namespace

int activeMonths(Instant start, Instant end, std::span<const MonthSlot> slots) {
    const auto count = std::ranges::count_if(slots, [&](const MonthSlot& slot) {
        const bool startedBefore = start <= slot.slotStart;
        const bool endsInside = end >= slot.slotStart && end <= slot.slotEnd;
        const bool spans = startedBefore && end >= slot.slotEnd;
        const bool startsInside = start >= slot.slotStart && start <= slot.slotEnd;
        return (startedBefore && endsInside) || spans || startsInside;
    });
    return static_cast<int>(count);
}

std::optional<TransactionPresentation> expanded(TransactionPresentation transaction,
                                                std::span<const MonthSlot> slots,
                                                const Calendar& calendar) {
    const std::optional<RecurringType> type = recurringType(transaction.recurringType);
    if (type == RecurringType::monthly) {
        const std::int32_t count = timesCounted(transaction, slots);
        if (count == 0)
            return std::nullopt;
        transaction.amount = checkedMultiply(transaction.amount, count);
        return transaction;
    }
    if (type == RecurringType::yearly && fallsYearly(transaction, slots, calendar))
        return transaction;
    return std::nullopt;
}

bool isInFrame(const TransactionPresentation& transaction, const Period& period,
               std::span<const MonthSlot> slots, const Calendar& calendar) {
    if (transaction.isRecurring == true)
        return expanded(transaction, slots, calendar).has_value();
    return transaction.startDate >= period.start && transaction.startDate < period.end;
}

std::int32_t timesCounted(const TransactionPresentation& transaction,
                          std::span<const MonthSlot> slots) {
    if (transaction.isRecurring != true || transaction.recurringType != u"monthly")
        return 1;
    return activeMonths(required(transaction.id, transaction.startDate, "startDate"),
                        required(transaction.id, transaction.endDate, "endDate"), slots);
}

} // namespace kovamo
