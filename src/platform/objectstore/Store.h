#pragma once

#include "FetchRequest.h"

#include <QSet>
#include <QStringList>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <optional>

namespace kovamo {

struct ObjectChanges;

/// One SQLite file with one table: the entity's, an integer primary key "pk" and a column for each
/// attribute. All failures are thrown as StoreError.
class Store {
  public:
    /// Opens the store at `path`, or makes it, readable and writable by its owner only. A file
    /// that is no store, is damaged or comes from a newer version is left byte for byte as it is.
    Store(const QString& path, const EntityDescription& entity);

    [[nodiscard]] const QString& path() const { return m_path; }

    /// The identities of the matching records, ordered by the sort descriptors, then by identity.
    [[nodiscard]] std::vector<ObjectID> select(const FetchRequest& request) const;

    /// How many records match.
    [[nodiscard]] std::size_t count(const FetchRequest& request) const;

    /// The values of a record; empty when there is none.
    [[nodiscard]] std::vector<Value> read(ObjectID id);

    /// An identity that no stored record has: one above the largest.
    [[nodiscard]] ObjectID unusedID() const;

    /// Writes all of `changes`, durably when it returns, or none.
    void write(const ObjectChanges& changes);

    /// Whether another writer has saved since this was last asked.
    [[nodiscard]] bool changedElsewhere();

  private:
    void refuseNewer() const;
    void refuseDamaged() const;
    void createSchema();
    [[nodiscard]] SQLite::Statement prepared(const QString& selection,
                                             const FetchRequest& request) const;

    [[nodiscard]] QString shared(const QString& text);

    QString m_path;
    const EntityDescription& m_entity;
    QString m_table;
    QStringList m_columns;
    mutable std::optional<SQLite::Database> m_database;
    std::optional<SQLite::Statement> m_readRow;
    std::optional<SQLite::Statement> m_dataVersion;
    int m_lastDataVersion = 0;
    // Texts that many records have in common are held once.
    QSet<QString> m_texts;
};

} // namespace kovamo
