#include "FilteredList.h"

#include "editing/TransactionLine.h"
#include "ledger/Recurrence.h"
#include "platform/foundation/ListDifference.h"

#include <utility>

namespace kovamo {

void FilteredList::setTransactionContainer(std::unique_ptr<TransactionContainer> container) {
    m_transactionContainer = std::move(container);
    connect(m_transactionContainer.get(), &TransactionContainer::objectWillChange, this,
            &FilteredList::showLater);
    show();
}

void FilteredList::showLater() {
    if (!std::exchange(m_willShow, true))
        QMetaObject::invokeMethod(this, &FilteredList::show, Qt::QueuedConnection);
}

void FilteredList::show() {
    m_willShow = false;
    const QList<SharedPresentation>& after = m_transactionContainer->transactions();
    const auto [first, removed, inserted] = listDifference(m_rows, after);
    if (removed > 0) {
        beginRemoveRows({}, first, first + removed - 1);
        m_rows.remove(first, removed);
        endRemoveRows();
    }
    if (inserted > 0) {
        beginInsertRows({}, first, first + inserted - 1);
        m_rows = after;
        endInsertRows();
    }
    // Rows that stay may have other contents: they are equal by their ids.
    m_rows = after;
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int FilteredList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant FilteredList::data(const QModelIndex& index, int role) const {
    const TransactionPresentation& row = m_rows.at(index.row());
    switch (role) {
    case LineRole:
        return QVariant::fromValue(
            TransactionLine(row, timesCounted(row, m_transactionContainer->months())));
    case HasDividerRole:
        return row != m_rows.back();
    default:
        return {};
    }
}

QHash<int, QByteArray> FilteredList::roleNames() const {
    return {{LineRole, "line"}, {HasDividerRole, "hasDivider"}};
}

} // namespace kovamo
