#include "TransactionsView.h"

#include "TransactionLine.h"
#include "platform/objectstore/file/StoreError.h"

#include <set>

namespace kovamo {

namespace {

FetchRequest largestFirst() {
    FetchRequest request = Transaction::fetchRequest();
    request.sortDescriptors = {{QStringLiteral("amount"), false}};
    return request;
}

} // namespace

TransactionsView::TransactionsView(ManagedObjectContext& viewContext)
    : LiveFetch(viewContext, largestFirst()), m_viewContext(viewContext),
      m_exchange(viewContext.storePath()), m_search(viewContext, *this), m_deleted(viewContext) {
    viewContext.prepareToSave();
}

Transaction& TransactionsView::transaction(int row) const {
    return static_cast<Transaction&>(m_viewContext.object(m_search.objectID(row)));
}

bool TransactionsView::edit(int row) {
    // A delegate can still be tapped until the next frame after its record was deleted.
    if (row < 0 || row >= m_search.rowCount() || !transaction(row).exists())
        return false;
    // A form before may save while its page slides off: this one's page stays then.
    const PresentationMode page([this, number = m_forms.size()] {
        if (number == m_forms.size() - 1)
            Q_EMIT formDismissed();
    });
    m_forms.push_back(std::make_unique<AddTransactionView>(m_viewContext, &transaction(row), page));
    Q_EMIT formChanged();
    return true;
}

void TransactionsView::remove(const QList<int>& rows) {
    for (const int row : std::set<int>(rows.begin(), rows.end())) {
        if (row < 0 || row >= m_search.rowCount())
            continue;
        Transaction& record = transaction(row);
        // Another process may have been faster.
        if (record.exists())
            m_deleted.willDelete(record);
        m_viewContext.deleteObject(record);
        try {
            m_viewContext.save();
        } catch (const StoreError&) {
            // Ignored on purpose: the context keeps the deletion pending.
        }
    }
}

int TransactionsView::takeBack() {
    const Transaction* record = m_deleted.takeBack();
    return record ? m_search.rowOf(record->objectID()) : -1;
}

QVariant TransactionsView::data(const QModelIndex& index, int role) const {
    if (role != LineRole)
        return {};
    return QVariant::fromValue(lineOf(static_cast<const Transaction&>(object(index.row()))));
}

QHash<int, QByteArray> TransactionsView::roleNames() const {
    return {{LineRole, "line"}};
}

} // namespace kovamo
