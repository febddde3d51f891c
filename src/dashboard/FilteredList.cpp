#include "FilteredList.h"

#include "editing/TransactionLine.h"

#include <algorithm>

namespace kovamo {

const QList<TransactionPresentation>& FilteredList::transactions() const {
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
    const TransactionPresentation& row = transactions().at(place);
    switch (role) {
    case LineRole:
        return QVariant::fromValue(TransactionLine(row));
    case HasDividerRole:
        return row != transactions().back();
    default:
        return {};
    }
}

QHash<int, QByteArray> FilteredList::roleNames() const {
    return {{LineRole, "line"}, {HasDividerRole, "hasDivider"}};
}

} // namespace kovamo
