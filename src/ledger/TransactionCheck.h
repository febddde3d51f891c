#pragma once

#include "TimeFrame.h"
#include "model/Transaction.h"
#include "platform/objectstore/store/StoreInspection.h"

#include <array>
#include <span>

namespace kovamo {

/// The value of a record's attribute; nothing where it is absent or wrong.
template<typename T>
[[nodiscard]] const T* valueOf(StoreInspection::Record record, Transaction::Attribute attribute) {
    const std::optional<Value>& value = record[attribute];
    return value ? std::get_if<T>(&*value) : nullptr;
}

/// Finds what keeps the screens from showing transactions as they are.
class TransactionCheck {
  public:
    TransactionCheck();

    /// What is wrong with a record, a few words for each fault.
    [[nodiscard]] QStringList faultsOf(StoreInspection::Record record) const;
    /// The same of a record's values, one for each attribute.
    [[nodiscard]] QStringList faultsOf(std::span<const Value> values) const;

  private:
    void checkRecurrence(StoreInspection::Record record, QStringList& faults) const;

    std::array<std::vector<MonthSlot>, 3> m_slotsOfFrames;
};

} // namespace kovamo
