#pragma once

#include "platform/objectstore/ManagedObjectContext.h"
#include "platform/objectstore/store/Store.h"

namespace kovamo {

/// A store of transactions that a command works on, without the app.
struct OpenStore {
    /// Throws StoreError, as Store does.
    OpenStore(const QString& path, Store::Access access);

    Store store;
    ManagedObjectContext context;
};

} // namespace kovamo
