#pragma once

#include "ledger/TimeFrame.h"
#include "model/TransactionPresentation.h"

#include <QString>
#include <span>

namespace kovamo {

/// What the amount of a transaction of a time frame is made of, whose months are `slots`:
/// "3 × $3,200, monthly"; the day of a one-off. A transaction without a date is a fatal error.
[[nodiscard]] QString composition(const TransactionPresentation& transaction,
                                  std::span<const MonthSlot> slots);

} // namespace kovamo
