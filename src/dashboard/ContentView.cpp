#include "ContentView.h"

#include "Composition.h"
#include <utility>

namespace kovamo {

namespace {

/// Enough to know whether anything is stored.
FetchRequest oneOfAll() {
    FetchRequest request = Transaction::fetchRequest();
    request.fetchLimit = 1;
    return request;
}

} // namespace

ContentView::ContentView(ManagedObjectContext& viewContext, std::function<void()> requestReview)
    : m_viewContext(viewContext), m_requestReview(std::move(requestReview)),
      m_allTransactions(viewContext, oneOfAll()), m_incoming(viewContext.storePath()) {
    // One save is heard of twice, and laid out once: the form's notification loads the container;
    // a deletion and what another process saves are told by the context alone.
    connect(&m_refreshPublisher, &NotificationPublisher::received, this, &ContentView::load);
    connect(&m_transactionContainer, &TransactionContainer::objectWillChange, this,
            &ContentView::layOutLater);
    connect(&viewContext, &ManagedObjectContext::objectsDidChange, this, &ContentView::layOutLater);
    connect(this, &ContentView::showAddTransactionChanged, this, &ContentView::isCoveredChanged);
    connect(this, &ContentView::showTransactionsChanged, this, &ContentView::isCoveredChanged);
    connect(&m_incoming, &ExchangeView::changed, this, &ContentView::isCoveredChanged);
    connect(&m_incoming, &ExchangeView::changed, this, &ContentView::importNext);
}

QList<TimeFrameChoice> ContentView::timeFrames() {
    QList<TimeFrameChoice> choices;
    for (const NamedTimeFrame& frame : namedTimeFrames)
        choices.append({QStringLiteral("**%1**").arg(QLatin1String(frame.label)), frame.value});
    return choices;
}

void ContentView::setShowAddTransaction(bool show) {
    if (std::exchange(m_showAddTransaction, show) == show)
        return;
    if (show && (!m_addForm || m_addFormIsDone)) {
        const PresentationMode sheet([this] {
            m_addFormIsDone = true;
            setShowAddTransaction(false);
        });
        // Deleted at the end of this block, when the sheet shows the new form.
        const auto before = std::exchange(
            m_addForm, std::make_unique<AddTransactionView>(m_viewContext, nullptr, sheet));
        m_addFormIsDone = false;
        Q_EMIT addFormChanged();
    }
    Q_EMIT showAddTransactionChanged();
}

void ContentView::setShowTransactions(bool show) {
    if (std::exchange(m_showTransactions, show) == show)
        return;
    if (show && !m_transactionsView) {
        m_transactionsView = std::make_unique<TransactionsView>(m_viewContext);
        Q_EMIT transactionsViewChanged();
    }
    Q_EMIT showTransactionsChanged();
}

QString ContentView::rowComposition(int row) const {
    if (row < 0 || row >= m_filteredList.rowCount())
        return {};
    return composition(m_filteredList.transaction(row), monthSlots(m_selectedTimeFrame));
}

void ContentView::findTransactions() {
    setShowTransactions(true);
    m_transactionsView->search()->open();
}

void ContentView::importFrom(const QString& path) {
    m_filesToImport.append(path);
    importNext();
}

void ContentView::importNext() {
    if (m_hasAppeared && !m_incoming.isPresented() && !m_filesToImport.isEmpty())
        m_incoming.importFrom(m_filesToImport.takeFirst());
}

void ContentView::addTransactionDidClose() {
    m_addForm.reset();
    Q_EMIT addFormChanged();
}

void ContentView::transactionsDidClose() {
    m_transactionsView.reset();
    Q_EMIT transactionsViewChanged();
}

void ContentView::appear() {
    load();
    layOut();
    if (m_requestReview)
        m_requestReview();
    m_hasAppeared = true;
    // Not before the screen has got the focus, which the sheet takes from it.
    QMetaObject::invokeMethod(this, &ContentView::importNext, Qt::QueuedConnection);
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
    m_hasTransactions = m_allTransactions.rowCount() > 0;
    m_banner = Banner(m_viewContext, m_selectedTimeFrame);
    m_chart = m_banner.isShown() ? TransactionChart(m_viewContext, m_selectedTimeFrame)
                                 : TransactionChart();
    auto container = std::make_unique<TransactionContainer>();
    container->fetchTransactions(m_selectedTimeFrame, m_viewContext);
    m_filteredList.setTransactionContainer(std::move(container));
    Q_EMIT laidOut();
}

} // namespace kovamo
