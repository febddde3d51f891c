#pragma once

#include "StoreConnection.h"
#include "platform/objectstore/FetchRequest.h"
#include "platform/objectstore/file/DailyCopy.h"

#include <QSet>
#include <SQLiteCpp/Transaction.h>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <span>

namespace kovamo {

struct ObjectChanges;

/// One SQLite file with one table: the entity's. All failures are thrown as StoreError.
class Store {
  public:
    using Access = StoreAccess;

    /// Opens the store at `path`, or makes it, readable and writable by its owner only. A file
    /// that is no store, is damaged, comes from a newer version or holds a value that its attribute
    /// cannot have is refused. Until the first write, any file is left byte for byte as it is. Only
    /// to read, a file that is not there is refused, too, and write() is not allowed.
    Store(const QString& path, const EntityDescription& entity,
          Access access = Access::readAndWrite);
    Q_DISABLE_COPY_MOVE(Store)

    [[nodiscard]] const QString& path() const { return m_path; }

    /// The identities of the matching records, ordered by the sort descriptors, then by identity.
    [[nodiscard]] std::vector<ObjectID> select(const FetchRequest& request) const;

    /// How many records match.
    [[nodiscard]] std::size_t count(const FetchRequest& request) const;

    /// The values of a record; empty when there is none.
    [[nodiscard]] std::vector<Value> read(ObjectID id);

    /// Calls `take` with the values of each of these records, in some order.
    void read(std::span<const ObjectID> ids,
              const std::function<void(ObjectID, std::vector<Value>)>& take);

    /// What is told of each record: its identity and its values. False ends the visit.
    using Visitor = std::function<bool(ObjectID, std::span<const Value>)>;

    /// Visits all records above an identity as they are in one state of the file, in the order of
    /// their identities, for as long as `visit` returns true.
    void forEach(const Visitor& visit, ObjectID after = std::numeric_limits<ObjectID>::min());

    /// What is read until the transaction goes is of one state of the file, which is locked and
    /// looked at once and not for each record. Requires that nothing is written meanwhile and that
    /// no other such transaction lasts.
    [[nodiscard]] std::unique_ptr<SQLite::Transaction> readTransaction();

    /// An identity above that of every stored record. It grows with time, in milliseconds, so that
    /// a deleted record's is not given to another one: a second process may still be at that
    /// record.
    [[nodiscard]] ObjectID unusedID() const;

    /// Goes on by that many pages with the copy that the first write of a run, and of each day
    /// that the run lasts, keeps of what is stored before it. Returns whether there is nothing left
    /// to do ahead of the write.
    bool prepareCopy(int pages);

    /// Writes all of `changes`, durably when it returns, or none. Keeps the copy first; one that
    /// fails is given up for the day. Returns whether it could write: not where another writer has
    /// taken the identity of an inserted record.
    [[nodiscard]] bool write(const ObjectChanges& changes);

    /// The newest copy that another store left, which was at this path before; nothing where this
    /// one has records.
    [[nodiscard]] std::optional<QString> copyOfFormer() const;

    /// Whether another writer has saved since this was last asked.
    [[nodiscard]] bool changedElsewhere();

    /// Whether another file has taken the place of the one that is open, or whether that place is
    /// empty.
    [[nodiscard]] bool isReplaced() const;

    /// Whether there is a file at the store's path that is not empty: an empty one is still
    /// being made.
    [[nodiscard]] bool isThere() const;

    /// Opens what lies at the path now, or makes it, and closes the file that was open before. When
    /// that fails, the former file stays open to be read from. Requires that nothing is in use.
    void reopen();

  private:
    friend class BulkWrite;

    void readValues(SQLite::Statement& row, ObjectID id, std::vector<Value>& values);
    void prepareToWrite();
    [[nodiscard]] StatementCache::Use prepared(const QString& selection,
                                               const FetchRequest& request) const;
    [[nodiscard]] ObjectID largestID() const;
    [[nodiscard]] QString shared(const QString& text);

    QString m_path;
    const EntityDescription& m_entity;
    EntityTable m_table;
    Access m_access;
    std::unique_ptr<StoreConnection> m_connection;
    // Declared after the connection, to be destroyed first: an unfinished copy reads from it.
    DailyCopy m_copy;
    ObjectID m_largestDeleted = 0;
    // Equal texts of many records share one QString, which saves memory.
    QSet<QString> m_texts;
};

} // namespace kovamo
