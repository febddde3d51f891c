#include "FilteredList.h"

#include "editing/TransactionsView.h"
#include "model/Transaction.h"

#include <algorithm>

namespace kovamo {

const std::vector<TransactionPresentation>& FilteredList::transactions() const {
    return m_transactionContainer->transactions();
}

void FilteredList::setTransactionContainer(std::unique_ptr<TransactionContainer> container) {
    const auto& before = transactions();
    const auto& after = container->transactions();
    const auto common = static_cast<std::ptrdiff_t>(std::min(before.size(), after.size()));
    const auto head = std::mismatch(before.begin(), before.begin() + common, after.begin()).first -
                      before.begin();
    const auto tail =
        std::mismatch(before.rbegin(), before.rbegin() + (common - head), after.rbegin()).first -
        before.rbegin();
    const auto first = static_cast<int>(head);
    const int removed = static_cast<int>(before.size()) - first - static_cast<int>(tail);
    const int inserted = static_cast<int>(after.size()) - first - static_cast<int>(tail);

    if (removed > 0)
        beginRemoveRows({}, first, first + removed - 1);
    m_transactionContainer = std::move(container);
    m_gapStart = first;
    m_gapSize = inserted;
    if (removed > 0)
        endRemoveRows();
    if (inserted > 0)
        beginInsertRows({}, first, first + inserted - 1);
    m_gapSize = 0;
    if (inserted > 0)
        endInsertRows();
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int FilteredList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(transactions().size()) - m_gapSize;
}

QVariant FilteredList::data(const QModelIndex& index, int role) const {
    const int place = index.row() < m_gapStart ? index.row() : index.row() + m_gapSize;
    const TransactionPresentation& row = transactions().at(static_cast<std::size_t>(place));
    switch (role) {
    case EmojiRole:
        return required(row.id, row.emoji, "emoji");
    case TitleRole:
        return required(row.id, row.title, "title");
    case AmountRole:
        return signedAmount(row.isPositive, row.amount);
    case HasDividerRole:
        return row != transactions().back();
    case SentenceRole:
        return transactionSentence(required(row.id, row.title, "title"), row.isPositive, row.amount,
                                   row.isRecurring == true);
    default:
        return {};
    }
}

QHash<int, QByteArray> FilteredList::roleNames() const {
    return {{EmojiRole, "emoji"},
            {TitleRole, "title"},
            {AmountRole, "amount"},
            {HasDividerRole, "hasDivider"},
            {SentenceRole, "sentence"}};
}

} // namespace kovamo
