#include "TransactionsView.h"

#include "platform/foundation/Formatters.h"
#include "platform/objectstore/StoreError.h"

namespace kovamo {

namespace {

FetchRequest largestFirst() {
    FetchRequest request = Transaction::fetchRequest();
    request.sortDescriptors = {{QStringLiteral("amount"), false}};
    return request;
}

} // namespace

QString formattedAmount(std::int32_t amount) {
    return currencyText(amount);
}

QString signedAmount(bool isPositive, std::int32_t amount) {
    return QLatin1String(isPositive ? "+ " : "- ") + formattedAmount(amount);
}

QString transactionSentence(const QString& title, bool isPositive, std::int32_t amount,
                            bool isRecurring) {
    return QStringLiteral("%1, %2, %3%4")
        .arg(title, QLatin1String(isPositive ? "earning" : "spending"), formattedAmount(amount),
             QLatin1String(isRecurring ? ", recurring" : ""));
}

TransactionsView::TransactionsView(ManagedObjectContext& viewContext)
    : LiveFetch(viewContext, largestFirst()), m_viewContext(viewContext) {}

Transaction& TransactionsView::transaction(int row) const {
    return static_cast<Transaction&>(object(row));
}

void TransactionsView::edit(int row) {
    // The form before may still be on its way out of the screen.
    if (m_form)
        m_form.release()->deleteLater();
    m_form = std::make_unique<AddTransactionView>(m_viewContext, &transaction(row));
    Q_EMIT formChanged();
}

void TransactionsView::remove(const QList<int>& rows) {
    for (const int row : rows) {
        if (row < 0 || row >= rowCount())
            continue;
        m_viewContext.deleteObject(transaction(row));
        try {
            m_viewContext.save();
        } catch (const StoreError&) {
            // Passed over by design: the context keeps the deletion pending.
        }
    }
}

QVariant TransactionsView::data(const QModelIndex& index, int role) const {
    const Transaction& record = transaction(index.row());
    switch (role) {
    case EmojiRole:
        return required(record.id(), record.emoji(), "emoji");
    case TitleRole:
        return required(record.id(), record.title(), "title");
    case IsRecurringRole:
        return record.isRecurring();
    case AmountRole:
        return signedAmount(record.isPositive(), record.amount());
    case SentenceRole:
        return transactionSentence(required(record.id(), record.title(), "title"),
                                   record.isPositive(), record.amount(), record.isRecurring());
    default:
        return {};
    }
}

QHash<int, QByteArray> TransactionsView::roleNames() const {
    return {{EmojiRole, "emoji"},
            {TitleRole, "title"},
            {IsRecurringRole, "isRecurring"},
            {AmountRole, "amount"},
            {SentenceRole, "sentence"}};
}

} // namespace kovamo
