#pragma once

#include "EntityTable.h"

#include <QStringList>
#include <SQLiteCpp/Database.h>
#include <functional>
#include <optional>
#include <span>

namespace kovamo {

/// A store's file, looked at without trusting it and left as it is. All failures are thrown as
/// StoreError.
class StoreInspection {
  public:
    /// The values of a record in the entity's order; nothing in place of one that its attribute
    /// cannot have.
    using Record = std::span<const std::optional<Value>>;

    /// Opens the file at `path`. One that is not there, is no database or holds no table of the
    /// entity is refused.
    StoreInspection(const QString& path, const EntityDescription& entity);
    ~StoreInspection();
    Q_DISABLE_COPY_MOVE(StoreInspection)

    /// What is wrong with the file itself, up to a hundred faults.
    [[nodiscard]] QStringList fileFaults();

    /// How many records there are.
    [[nodiscard]] std::int64_t count();

    /// The latest date that a record has under the name `attribute`; nothing where none has one.
    [[nodiscard]] std::optional<Instant> latest(const QString& attribute);

    /// Hands each record to `visit`, in the order of their identities.
    void forEach(const std::function<void(ObjectID, Record)>& visit);

  private:
    QString m_path;
    const EntityDescription& m_entity;
    EntityTable m_table;
    std::optional<SQLite::Database> m_database;
};

} // namespace kovamo
