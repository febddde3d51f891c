#include "TransactionContainer.h"

#include "Recurrence.h"
#include "platform/foundation/RadixSort.h"
#include "platform/objectstore/file/StoreError.h"

#include <iterator>

namespace kovamo {

namespace {

/// The matching records; none when the fetch fails, which is not reported on purpose.
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
                        QList<SharedPresentation>& list, const std::function<void()>& willAppend) {
    const auto [start, end] = periodBounds(timeFrame);
    const auto oneOff = fetched(
        context,
        Predicate(QStringLiteral("startDate >= %@ AND startDate < %@ AND isRecurring == NO"),
                  {start, end}));
    const auto recurring = fetched(context, Predicate(QStringLiteral("isRecurring == YES")));
    list.reserve(list.size() + std::ssize(oneOff) + std::ssize(recurring));
    for (const Transaction* transaction : oneOff) {
        willAppend();
        list.append(transaction->presentation());
    }

    const std::vector<MonthSlot> slots = monthSlots(timeFrame);
    const Calendar calendar;
    for (const Transaction* transaction : recurring)
        if (auto presentation = expanded(transaction->presentation(), slots, calendar)) {
            willAppend();
            list.append(std::make_shared<const TransactionPresentation>(*std::move(presentation)));
        }
}

void TransactionContainer::fetchTransactions(TimeFrame timeFrame, ManagedObjectContext& context) {
    Q_EMIT objectWillChange();
    m_transactions.clear();
    m_slots = monthSlots(timeFrame);
    gatherTransactions(timeFrame, context, m_transactions, [this] { Q_EMIT objectWillChange(); });
    Q_EMIT objectWillChange();
    radixSortInPlace(m_transactions,
                     [](const auto& transaction) { return ~sortKey(transaction->amount); });
}

} // namespace kovamo
