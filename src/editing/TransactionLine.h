#pragma once

#include "model/TransactionPresentation.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kovamo {

/// A whole amount as money in the user's locale, without a fraction.
[[nodiscard]] QString formattedAmount(std::int32_t amount);

/// An amount with its direction: "+ " or "- " and the money text.
[[nodiscard]] QString signedAmount(bool isPositive, std::int32_t amount);

/// The sentence after a deletion: "Rent deleted", for a recurring transaction with its start:
/// "Salary, monthly since 2019, deleted".
[[nodiscard]] QString deletionSentence(const TransactionPresentation& deleted);

class Transaction;

/// What a row of a list shows of a transaction.
struct TransactionLine {
    Q_GADGET
    QML_VALUE_TYPE(transactionLine)
    Q_PROPERTY(QString emoji MEMBER emoji)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(bool isRecurring MEMBER isRecurring)
    Q_PROPERTY(QString amount MEMBER amount)
    Q_PROPERTY(QString sentence MEMBER sentence)

  public:
    TransactionLine() = default;

    /// A transaction whose amount counts `times` times. One without emoji or title is a fatal
    /// error.
    explicit TransactionLine(const TransactionPresentation& transaction, std::int32_t times = 1);

    /// As much of both as a row can show.
    QString emoji;
    QString title;
    bool isRecurring = false;
    /// The amount with its direction.
    QString amount;
    /// The row as a screen reader says it: "Salary, earning, $9,600, monthly, 3 times", of a
    /// one-off with its day: "Cinema, spending, $20, May 15, 2024".
    QString sentence;
};

/// The line of a record; an empty one where another process has deleted it, until the next merge.
[[nodiscard]] TransactionLine lineOf(const Transaction& record);

} // namespace kovamo
