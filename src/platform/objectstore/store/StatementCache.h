#pragma once

#include <QHash>
#include <QString>
#include <SQLiteCpp/Statement.h>
#include <memory>
#include <unordered_map>

namespace kovamo {

/// The statements of a database, each prepared when it is first used and kept for the next time.
class StatementCache {
  public:
    struct Reset {
        void operator()(SQLite::Statement* statement) const { statement->tryReset(); }
    };

    /// A statement while it is used; it is reset when that ends.
    using Use = std::unique_ptr<SQLite::Statement, Reset>;

    /// Requires: `database` outlives the cache.
    explicit StatementCache(const SQLite::Database& database) : m_database(database) {}

    /// The statement that `sql` says. Throws SQLite::Exception when it says none. Requires that it
    /// is not in use.
    [[nodiscard]] Use use(const QString& sql) {
        return Use(&m_statements.try_emplace(sql, m_database, sql.toStdString()).first->second);
    }

  private:
    const SQLite::Database& m_database;
    std::unordered_map<QString, SQLite::Statement> m_statements;
};

} // namespace kovamo
