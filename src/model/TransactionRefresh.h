#pragma once

#include <QString>

namespace kovamo {

/// The name of the notification that stored transactions have changed, with the text "refresh" as
/// its object. Whoever saves posts it; whoever shows transactions loads them again.
[[nodiscard]] inline QString transactionRefresh() {
    return QStringLiteral("TransactionRefresh");
}

} // namespace kovamo
