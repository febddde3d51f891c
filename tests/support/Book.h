#pragma once

#include "RecordStore.h"
#include "model/Transaction.h"

namespace kovamo {

/// A transaction as a test writes it down; its dates as at() reads them.
struct Line {
    std::int32_t amount = 0;
    const char* start = "2024-05-15";
    const char* recurringType = nullptr;
    const char* end = "2030-01-01";
    bool isPositive = true;
};

/// A request for the transactions that meet a condition.
[[nodiscard]] FetchRequest transactions(const Predicate& predicate = {},
                                        std::vector<SortDescriptor> sortDescriptors = {});

/// A real store of transactions in the scratch folder of the world.
class Book : public RecordStore<Transaction> {
  public:
    Book(std::initializer_list<Line> lines = {});

    /// Adds a one-off, or a recurring transaction where `recurringType` is given.
    Transaction& add(const Line& line);
    /// The amounts of the transactions that a request fetches, in order.
    [[nodiscard]] std::vector<std::int32_t>
    amounts(const FetchRequest& request = transactions()) const {
        return each(&Transaction::amount, request);
    }
};

} // namespace kovamo
