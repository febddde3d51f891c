#pragma once

#include "World.h"
#include "platform/objectstore/PersistentContainer.h"

#include <SQLiteCpp/Database.h>

namespace kovamo {

/// A real store of records of the kind `T`, in the scratch folder of the world.
template<typename T>
class RecordStore {
  public:
    explicit RecordStore(const QString& name)
        : container(name, T::entity()), context(loaded(container)) {}

    PersistentContainer container;
    ManagedObjectContext& context;

    /// The records that a request fetches, in order.
    [[nodiscard]] std::vector<T*> all(const FetchRequest& request = {
                                          .entityName = T::entity().name}) const {
        return context.fetch<T>(request);
    }
    /// What `get` says of each of them.
    template<typename U>
    [[nodiscard]] std::vector<U> each(U (T::*get)() const, const FetchRequest& request) const {
        std::vector<U> values;
        for (const T* record : all(request))
            values.push_back((record->*get)());
        return values;
    }
    /// Runs SQL on the store's file as another program would.
    void elsewhere(const std::string& sql) const {
        SQLite::Database(container.storePath().toStdString(), SQLite::OPEN_READWRITE).exec(sql);
    }

  private:
    [[nodiscard]] static ManagedObjectContext& loaded(PersistentContainer& container) {
        container.loadPersistentStores([](const StoreError* error) { ASSERT_EQ(error, nullptr); });
        return container.viewContext();
    }
};

} // namespace kovamo
