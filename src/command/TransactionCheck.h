#pragma once

#include "ledger/TimeFrame.h"
#include "platform/objectstore/store/StoreInspection.h"

#include <QSet>
#include <QUuid>
#include <array>

namespace kovamo {

/// Finds what keeps the screens from showing transactions as they are.
class TransactionCheck {
  public:
    TransactionCheck();

    /// What is wrong with a record, a few words for each fault. To be called once for each record
    /// of a store: it remembers their ids, to find one that two records have.
    [[nodiscard]] QStringList faultsOf(StoreInspection::Record record);

  private:
    void checkRecurrence(StoreInspection::Record record, QStringList& faults) const;

    std::array<std::vector<MonthSlot>, 3> m_slotsOfFrames;
    QSet<QUuid> m_ids;
};

/// What names a record to its user: the identity and the title, in one line.
[[nodiscard]] QString nameOf(ObjectID objectID, StoreInspection::Record record);

} // namespace kovamo
