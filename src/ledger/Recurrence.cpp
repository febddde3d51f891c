#include "Recurrence.h"

#include "model/RecurringType.h"
#include "platform/foundation/CheckedArithmetic.h"

#include <algorithm>

namespace kovamo {

namespace {

std::optional<TransactionPresentation> monthly(const Transaction& transaction,
                                               std::span<const MonthSlot> slots) {
    const Instant start = required(transaction.id(), transaction.startDate(), "startDate");
    const Instant end = required(transaction.id(), transaction.endDate(), "endDate");
    const int count = activeMonths(start, end, slots);
    if (count == 0)
        return std::nullopt;
    TransactionPresentation presentation(transaction);
    presentation.amount = checkedMultiply(presentation.amount, std::int32_t{count});
    return presentation;
}

std::optional<TransactionPresentation>
yearly(const Transaction& transaction, std::span<const MonthSlot> slots, const Calendar& calendar) {
    const Instant end = required(transaction.id(), transaction.endDate(), "endDate");
    const bool falls = std::ranges::any_of(slots, [&](const MonthSlot& slot) {
        if (end <= slot.slotStart)
            return false;
        const Instant start = required(transaction.id(), transaction.startDate(), "startDate");
        return calendar.day(start).month == slot.startMonth;
    });
    return falls ? std::optional<TransactionPresentation>(transaction) : std::nullopt;
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

std::optional<TransactionPresentation> expanded(const Transaction& transaction,
                                                std::span<const MonthSlot> slots,
                                                const Calendar& calendar) {
    const std::optional<RecurringType> type = recurringType(transaction.recurringType());
    if (type == RecurringType::monthly)
        return monthly(transaction, slots);
    if (type == RecurringType::yearly)
        return yearly(transaction, slots, calendar);
    return std::nullopt;
}

std::int32_t timesCounted(const TransactionPresentation& transaction,
                          std::span<const MonthSlot> slots) {
    if (transaction.isRecurring != true || transaction.recurringType != u"monthly")
        return 1;
    return activeMonths(required(transaction.id, transaction.startDate, "startDate"),
                        required(transaction.id, transaction.endDate, "endDate"), slots);
}

} // namespace kovamo
