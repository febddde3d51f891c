#pragma once

#include "EntityDescription.h"
#include "ManagedObjectContext.h"
#include "platform/objectstore/file/StoreError.h"

#include <functional>
#include <memory>

namespace kovamo {

/// What is left of a store: a copy that it kept.
struct FormerStore {
    QString copyPath;
    /// The day that the copy's name bears.
    QString day;
    std::int64_t records = 0;
};

/// A store with the context that the screens work on.
class PersistentContainer {
  public:
    /// A container whose store is `$XDG_DATA_HOME/name/name.sqlite` (`~/.local/share` when unset).
    /// Requires: `entity` outlives the container.
    PersistentContainer(QString name, const EntityDescription& entity);
    ~PersistentContainer();
    Q_DISABLE_COPY_MOVE(PersistentContainer)

    /// Where the store lies.
    [[nodiscard]] QString storePath() const;

    /// The newest copy that was kept of the store, if there is one.
    [[nodiscard]] std::optional<QString> newestCopy() const;

    /// Begins to read the store's file on a thread of its own, for loadPersistentStores().
    void readAhead() const;

    /// Opens the store, making it where there is none, and calls `completion` with nothing, or
    /// with the error.
    void loadPersistentStores(const std::function<void(const StoreError*)>& completion);

    /// What another store left that was here before, where the present one has no records: nothing
    /// else tells the user of it. Requires that the store is loaded.
    [[nodiscard]] std::optional<FormerStore> formerStore() const;

    /// The main context. Requires that the store is loaded; anything else is a fatal error.
    [[nodiscard]] ManagedObjectContext& viewContext() const;

  private:
    QString m_name;
    const EntityDescription& m_entity;
    std::unique_ptr<Store> m_store;
    std::unique_ptr<ManagedObjectContext> m_viewContext;
};

} // namespace kovamo
