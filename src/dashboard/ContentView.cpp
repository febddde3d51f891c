#include "ContentView.h"

#include "platform/foundation/NotificationCenter.h"
#include "platform/objectstore/file/StoreError.h"

#include <utility>

namespace kovamo {

ContentView::ContentView(ManagedObjectContext& viewContext, std::function<void()> requestReview)
    : m_viewContext(viewContext), m_requestReview(std::move(requestReview)) {
    connect(&m_transactionContainer, &TransactionContainer::objectWillChange, this,
            &ContentView::layOutLater);
    // A deletion posts no notification: the screen sees it in the store itself.
    connect(&viewContext, &ManagedObjectContext::objectsDidChange, this, &ContentView::layOutLater);
    NotificationCenter::defaultCenter().addObserver(transactionRefresh(), this,
                                                    [this](const QVariant&) { load(); });
}

QList<TimeFrameChoice> ContentView::timeFrames() {
    return {{QStringLiteral("**Current**"), 1},
            {QStringLiteral("**3 Months**"), 2},
            {QStringLiteral("**12 Months**"), 3}};
}

void ContentView::setShowAddTransaction(bool show) {
    if (std::exchange(m_showAddTransaction, show) == show)
        return;
    if (show && (!m_addForm || m_addFormIsDone)) {
        // It stays until the other is shown in its place.
        const auto before =
            std::exchange(m_addForm, std::make_unique<AddTransactionView>(m_viewContext));
        m_addFormIsDone = false;
        connect(m_addForm.get(), &AddTransactionView::dismissed, this, [this] {
            m_addFormIsDone = true;
            setShowAddTransaction(false);
        });
        Q_EMIT addFormChanged();
    }
    Q_EMIT showAddTransactionChanged();
}

void ContentView::setShowTransactions(bool show) {
    if (std::exchange(m_showTransactions, show) == show)
        return;
    if (show && !m_allTransactions) {
        m_allTransactions = std::make_unique<TransactionsView>(m_viewContext);
        Q_EMIT allTransactionsChanged();
    }
    Q_EMIT showTransactionsChanged();
}

void ContentView::addTransactionDidClose() {
    m_addForm.reset();
    Q_EMIT addFormChanged();
}

void ContentView::transactionsDidClose() {
    m_allTransactions.reset();
    Q_EMIT allTransactionsChanged();
}

void ContentView::appear() {
    load();
    layOut();
    if (m_requestReview)
        m_requestReview();
}

void ContentView::select(int timeFrame) {
    if (std::exchange(m_selectedTimeFrame, timeFrame) != timeFrame)
        Q_EMIT selectedTimeFrameChanged();
    load();
}

void ContentView::load() {
    m_transactionContainer.fetchTransactions(m_selectedTimeFrame, m_viewContext);
}

void ContentView::layOutLater() {
    if (!std::exchange(m_needsLayout, true))
        QMetaObject::invokeMethod(this, &ContentView::layOut, Qt::QueuedConnection);
}

void ContentView::layOut() {
    if (!std::exchange(m_needsLayout, false))
        return;
    m_isLaidOut = true;
    m_hasTransactions = isAnythingStored();
    m_banner = Banner(m_viewContext, m_selectedTimeFrame);
    m_chart = TransactionChart(m_viewContext, m_selectedTimeFrame);
    auto container = std::make_unique<TransactionContainer>();
    container->fetchTransactions(m_selectedTimeFrame, m_viewContext);
    m_filteredList.setTransactionContainer(std::move(container));
    Q_EMIT laidOut();
}

bool ContentView::isAnythingStored() const {
    FetchRequest request = Transaction::fetchRequest();
    request.fetchLimit = 1;
    try {
        return m_viewContext.count(request) > 0;
    } catch (const StoreError&) {
        return false;
    }
}

} // namespace kovamo
