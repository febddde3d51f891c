#pragma once

#include "model/TransactionPresentation.h"

#include <QList>

namespace kovamo {

/// Earnings minus spendings. A sum beyond 64 bits is a fatal error.
[[nodiscard]] std::int64_t netBalance(const QList<SharedPresentation>& transactions);

/// The size of a net balance. That of the smallest 64-bit number is a fatal error.
[[nodiscard]] std::int64_t magnitude(std::int64_t balance);

/// A net balance as money, with its direction unless it is zero: "- $480".
[[nodiscard]] QString balanceText(std::int64_t balance);

/// The verdict on a net balance, as the user reads it.
[[nodiscard]] QString verdictText(std::int64_t balance);

} // namespace kovamo
