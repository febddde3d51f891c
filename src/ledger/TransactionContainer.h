#pragma once

#include "TimeFrame.h"
#include "model/TransactionPresentation.h"
#include "platform/objectstore/ManagedObjectContext.h"

#include <QList>
#include <QObject>
#include <functional>
#include <vector>

namespace kovamo {

/// Appends to `list` the transactions of `timeFrame`: first the one-off ones that start in its
/// period, then what the recurring ones contribute to its months, each in the store's order. A
/// fetch that fails contributes nothing. `willAppend` is called before each.
void gatherTransactions(
    TimeFrame timeFrame, ManagedObjectContext& context, QList<SharedPresentation>& list,
    const std::function<void()>& willAppend = [] {});

/// The transactions of a period as a list that can be observed.
class TransactionContainer : public QObject {
    Q_OBJECT

  public:
    /// The period's transactions, largest amount first, equal amounts as they were gathered.
    [[nodiscard]] const QList<SharedPresentation>& transactions() const { return m_transactions; }

    /// The months of the period that was loaded.
    [[nodiscard]] const std::vector<MonthSlot>& months() const { return m_slots; }

    /// Loads the list afresh; it is complete when this returns.
    void fetchTransactions(TimeFrame timeFrame, ManagedObjectContext& context);

  Q_SIGNALS:
    /// The list is about to be assigned or appended to.
    void objectWillChange();

  private:
    QList<SharedPresentation> m_transactions;
    std::vector<MonthSlot> m_slots;
};

} // namespace kovamo
