#pragma once

#include "Store.h"
#include "platform/objectstore/file/LongWrite.h"

#include <span>

namespace kovamo {

/// Many records written in one transaction of a store, without an object for each: all are stored
/// by commit(), none if the value is destroyed before. Until then all others that write wait,
/// and what the store reads has them in it. All failures are thrown as StoreError.
class BulkWrite {
  public:
    /// Keeps the day's copy of the store and begins. Requires that `store` outlives the write and
    /// that nothing else is written to it meanwhile.
    explicit BulkWrite(Store& store);

    /// The identity that the next inserted record gets; each further one's is greater by one.
    [[nodiscard]] ObjectID nextID() const { return m_nextID; }

    /// Adds a record of these values, in the entity's order.
    void insert(std::span<const Value> values);

    /// Gives the record `id` these values. Requires that there is one.
    void update(ObjectID id, std::span<const Value> values);

    /// Fails also where another file has taken the store's place since it was opened.
    void commit();

  private:
    void put(SQLite::Statement& statement, ObjectID id, std::span<const Value> values);

    Store& m_store;
    StatementCache::Use m_inserting;
    StatementCache::Use m_updating;
    // Goes after the transaction, and comes after it has begun: else two would wait for each other.
    std::optional<LongWrite> m_longWrite;
    std::optional<SQLite::Transaction> m_transaction;
    ObjectID m_nextID = 0;
};

} // namespace kovamo
