#pragma once

#include "World.h"
#include "model/Transaction.h"
#include "platform/objectstore/PersistentContainer.h"

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
class Book {
  public:
    Book(std::initializer_list<Line> lines = {});

    PersistentContainer container;
    ManagedObjectContext& context;

    /// Adds a one-off, or a recurring transaction where `recurringType` is given.
    Transaction& add(const Line& line);
    /// The transactions that a request fetches, in order, and their amounts.
    [[nodiscard]] std::vector<Transaction*> all(const FetchRequest& request = transactions()) const;
    [[nodiscard]] std::vector<std::int32_t>
    amounts(const FetchRequest& request = transactions()) const;
    /// Runs SQL on the store's file as another program would.
    void elsewhere(const std::string& sql) const;
};

} // namespace kovamo
