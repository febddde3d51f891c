#pragma once

#include "model/Transaction.h"
#include "platform/objectstore/PersistentContainer.h"
#include "support/World.h"

namespace kovamo {

/// A transaction as a test writes it down; its dates as at() reads them.
struct Line {
    std::int32_t amount = 0;
    const char* start = "2024-05-15";
    const char* recurringType = nullptr;
    const char* end = "2030-01-01";
    bool isPositive = true;
};

/// A real store of transactions in the scratch folder of the world.
class Book {
  public:
    Book(std::initializer_list<Line> lines);

    PersistentContainer container;
    ManagedObjectContext& context;

    /// Adds a one-off, or a recurring transaction where `recurringType` is given.
    Transaction& add(const Line& line);
    /// Runs SQL on the store's file as another program would.
    void elsewhere(const std::string& sql) const;
};

} // namespace kovamo
