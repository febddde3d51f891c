#include "TransactionLine.h"

#include "model/Transaction.h"
#include "platform/foundation/Formatters.h"
#include "platform/foundation/ShownText.h"

namespace kovamo {

namespace {

constexpr qsizetype longestEmoji = 100;

/// How often it recurs, or its day.
QString timeText(const TransactionPresentation& transaction) {
    if (transaction.isRecurring == true)
        return transaction.recurringType.value_or(QString());
    return transaction.startDate
               ? localizedDateText(*transaction.startDate, QStringLiteral("yMMMd"))
               : QString();
}

} // namespace

QString formattedAmount(std::int32_t amount) {
    return currencyText(amount);
}

QString signedAmount(bool isPositive, std::int32_t amount) {
    return withDirection(isPositive, formattedAmount(amount));
}

QString deletionSentence(const TransactionPresentation& deleted) {
    constexpr qsizetype longest = 40;
    const QString title = shownText(deleted.title.value_or(QString()), longest).simplified();
    if (deleted.isRecurring != true || !deleted.recurringType || !deleted.startDate)
        return title + u" deleted";
    return title + u", " + *deleted.recurringType + u" since " +
           localizedDateText(*deleted.startDate, QStringLiteral("y")) + u", deleted";
}

TransactionLine::TransactionLine(const TransactionPresentation& transaction, std::int32_t times)
    : emoji(shownText(required(transaction.id, transaction.emoji, "emoji"), longestEmoji)),
      title(shownText(required(transaction.id, transaction.title, "title"))),
      isRecurring(transaction.isRecurring == true) {
    const QString money = formattedAmount(transaction.amount);
    amount = withDirection(transaction.isPositive, money);
    QStringList parts{title, QLatin1String(transaction.isPositive ? "earning" : "spending"), money,
                      timeText(transaction)};
    if (times > 1)
        parts.append(QStringLiteral("%1 times").arg(numberText(times)));
    parts.removeAll(QString());
    sentence = parts.join(QStringLiteral(", "));
}

TransactionLine lineOf(const Transaction& record) {
    return record.exists() ? TransactionLine(TransactionPresentation(record)) : TransactionLine();
}

} // namespace kovamo
