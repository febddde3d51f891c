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
      m_exchange(viewContext.storePath()) {
    viewContext.prepareToSave();
}

Transaction& TransactionsView::transaction(int row) const {
    return static_cast<Transaction&>(object(row));
}

bool TransactionsView::edit(int row) {
    // A delegate can still be tapped until the next frame after its record was deleted.
    if (!index(row).isValid() || !transaction(row).exists())
        return false;
    m_formBefore = std::move(m_form);
    m_form = std::make_unique<AddTransactionView>(m_viewContext, &transaction(row));
    Q_EMIT formChanged();
    return true;
}

void TransactionsView::remove(const QList<int>& rows) {
    for (const int row : std::set<int>(rows.begin(), rows.end())) {
        if (row < 0 || row >= rowCount())
            continue;
        m_viewContext.deleteObject(transaction(row));
        try {
            m_viewContext.save();
        } catch (const StoreError&) {
            // Ignored on purpose: the context keeps the deletion pending.
        }
    }
}

QVariant TransactionsView::data(const QModelIndex& index, int role) const {
    if (role != LineRole)
        return {};
    // A record that another process has just deleted stays in the list until the next merge.
    const Transaction& shown = transaction(index.row());
    return QVariant::fromValue(shown.exists() ? TransactionLine(TransactionPresentation(shown))
                                              : TransactionLine());
}

QHash<int, QByteArray> TransactionsView::roleNames() const {
    return {{LineRole, "line"}};
}

} // namespace kovamo
