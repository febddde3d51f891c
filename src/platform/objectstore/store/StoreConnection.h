#pragma once

#include "EntityTable.h"
#include "StatementCache.h"
#include "platform/objectstore/file/StoreFile.h"

#include <SQLiteCpp/Database.h>
#include <memory>

namespace kovamo {

/// What a store is opened for: only to read, nothing is made, and nothing changed beside it.
enum class StoreAccess { read, readAndWrite };

/// One SQLite file while it is open as a store: found to be one when it is opened, written to as
/// SQLite's write-ahead log wants it, and sealed when it is closed.
class StoreConnection {
  public:
    /// Opens the store at `path`, or makes it; refuses what Store() refuses, with a StoreError.
    /// Requires that `table` outlives the connection.
    StoreConnection(QString path, const EntityTable& table, StoreAccess access);
    ~StoreConnection();
    Q_DISABLE_COPY_MOVE(StoreConnection)

    [[nodiscard]] SQLite::Database& database() const { return *m_database; }
    [[nodiscard]] StatementCache& statements() const { return *m_statements; }

    /// The number that a query results in.
    [[nodiscard]] std::int64_t integer(const QString& query) const;

    /// Puts the file in write-ahead mode before its first write. Throws StoreError.
    void prepareToWrite();

    /// Whether another writer has saved since this was last asked. Throws StoreError.
    [[nodiscard]] bool changedElsewhere();

    /// Whether another file has taken the place of this one, or that place is empty.
    [[nodiscard]] bool isReplaced() const;

    /// Moves the log into the file, whose place another file has taken, and removes what lies
    /// beside that place of it. From then on the file counts as replaced. Throws SQLite::Exception.
    void leave();

  private:
    void open();
    void refuseNewer() const;
    void refuseDamaged() const;
    [[nodiscard]] QString wrongRecord() const;
    [[nodiscard]] bool isMade() const;
    void createSchema();
    void close();

    QString m_path;
    const EntityTable& m_table;
    StoreAccess m_access;
    std::unique_ptr<SQLite::Database> m_database;
    std::unique_ptr<StatementCache> m_statements;
    FileIdentity m_file;
    // Of the memory beside the file that its log is read by; empty until there is one.
    FileIdentity m_sharedMemory;
    bool m_hasLeft = false;
    bool m_wasWritten = false;
    int m_lastDataVersion = 0;
};

} // namespace kovamo
