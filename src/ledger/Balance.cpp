#include "Balance.h"

#include "platform/foundation/CheckedArithmetic.h"
#include "platform/foundation/Formatters.h"

namespace kovamo {

std::int64_t netBalance(const QList<SharedPresentation>& transactions) {
    std::int64_t sum = 0;
    for (const TransactionPresentation& transaction : transactions) {
        const std::int64_t amount = transaction.amount;
        sum = transaction.isPositive ? checkedAdd(sum, amount) : checkedSubtract(sum, amount);
    }
    return sum;
}

std::int64_t magnitude(std::int64_t balance) {
    return balance < 0 ? checkedSubtract(std::int64_t{0}, balance) : balance;
}

QString balanceText(std::int64_t balance) {
    const QString money = currencyText(magnitude(balance));
    return balance == 0 ? money : withDirection(balance > 0, money);
}

QString verdictText(std::int64_t balance) {
    if (balance > 0)
        return QStringLiteral("Your Kovamo is positive 👍");
    if (balance < 0)
        return QStringLiteral("Your Kovamo is negative 💔");
    return QStringLiteral("Your Kovamo is neutral 🧿");
}

} // namespace kovamo
