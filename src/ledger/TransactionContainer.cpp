#include "TransactionContainer.h"

#include "Recurrence.h"
#include "platform/objectstore/StoreError.h"

#include <algorithm>
#include <ranges>

namespace kovamo {

namespace {

/// The matching records; none when the fetch fails, which nobody is told by design.
std::vector<Transaction*> fetched(ManagedObjectContext& context, Predicate predicate) {
    FetchRequest request = Transaction::fetchRequest();
    request.predicate = std::move(predicate);
    try {
        return context.fetch<Transaction>(request);
    } catch (const StoreError&) {
        return {};
    }
}

} // namespace

void gatherTransactions(TimeFrame timeFrame, ManagedObjectContext& context,
                        const std::function<void(TransactionPresentation)>& append) {
    const auto [start, end] = periodBounds(timeFrame);
    const Predicate oneOff(
        QStringLiteral("startDate >= %@ AND startDate < %@ AND isRecurring == NO"), {start, end});
    for (const Transaction* transaction : fetched(context, oneOff))
        append(TransactionPresentation(*transaction));

    const Predicate recurring(QStringLiteral("isRecurring == YES"));
    const std::vector<MonthSlot> slots = monthSlots(timeFrame);
    const Calendar calendar;
    for (const Transaction* transaction : fetched(context, recurring))
        if (auto presentation = expanded(*transaction, slots, calendar))
            append(std::move(*presentation));
}

void TransactionContainer::fetchTransactions(TimeFrame timeFrame, ManagedObjectContext& context) {
    setTransactions({});
    gatherTransactions(timeFrame, context, [this](TransactionPresentation presentation) {
        Q_EMIT objectWillChange();
        m_transactions.push_back(std::move(presentation));
    });
    std::vector<TransactionPresentation> sorted = m_transactions;
    std::ranges::stable_sort(sorted, std::ranges::greater{}, &TransactionPresentation::amount);
    setTransactions(std::move(sorted));
}

void TransactionContainer::setTransactions(std::vector<TransactionPresentation> transactions) {
    Q_EMIT objectWillChange();
    m_transactions = std::move(transactions);
}

} // namespace kovamo
