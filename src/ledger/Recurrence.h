#pragma once

#include "TimeFrame.h"
#include "model/Transaction.h"
#include "model/TransactionPresentation.h"
#include "platform/foundation/Calendar.h"

#include <optional>
#include <span>

namespace kovamo {

/// How many of the months `slots` a monthly recurrence from `start` to `end` is active in.
[[nodiscard]] int activeMonths(Instant start, Instant end, std::span<const MonthSlot> slots);

/// What a recurring record contributes to the months `slots`, if anything: a "monthly" one its
/// copy with the amount times the months in which it is active, a "yearly" one its plain copy when
/// the month of its start, whatever the year, is `startMonth` of a slot and it has not ended by
/// then. A missing date is a fatal error when the rule reaches it; so is a product beyond 32 bits.
[[nodiscard]] std::optional<TransactionPresentation> expanded(TransactionPresentation transaction,
                                                              std::span<const MonthSlot> slots,
                                                              const Calendar& calendar);

/// Whether a time frame of the days `period` and the months `slots` has the transaction in it;
/// fails as expanded() does.
[[nodiscard]] bool isInFrame(const TransactionPresentation& transaction, const Period& period,
                             std::span<const MonthSlot> slots, const Calendar& calendar);

/// How many times a transaction is counted in the months `slots`: a "monthly" recurrence once for
/// each month in which it is active, anything else once. An expanded presentation's amount is its
/// record's, times this. Requires: the recurrence has its dates.
[[nodiscard]] std::int32_t timesCounted(const TransactionPresentation& transaction,
                                        std::span<const MonthSlot> slots);

} // namespace kovamo
