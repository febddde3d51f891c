#pragma once

#include "EntityTable.h"
#include "StatementCache.h"
#include "platform/objectstore/file/StoreFile.h"

#include <SQLiteCpp/Database.h>
#include <memory>

namespace kovamo {

/// What a store is opened for: only to read, nothing is made, and nothing changed beside it.
enum class StoreAccess { read, readAndWrite };

/// One SQLite file while it is open as a store: checked when it is opened, in write-ahead mode from
/// its first write on, sealed when it is closed.
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

    /// Gives up a file whose place another one has taken: moves its log into it, and removes the
    /// -wal and -shm files where they are still its own. From then on isReplaced() is true. Throws
    /// SQLite::Exception.
    void leave();

  private:
    void open();
    void waitForOthers();
    /// Asked by SQLite, again and again, while somebody else writes: whether to go on trying.
    [[nodiscard]] bool waitForOthers(int attempt);
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
    // Of the -shm file; empty until SQLite has made it. It tells whose the files beside are.
    FileIdentity m_sharedMemory;
    bool m_hasLeft = false;
    bool m_wasWritten = false;
    int m_lastDataVersion = 0;
    int m_lastAttempt = 0;
};

} // namespace kovamo
