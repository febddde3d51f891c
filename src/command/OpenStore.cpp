#include "OpenStore.h"

#include "model/Transaction.h"

namespace kovamo {

OpenStore::OpenStore(const QString& path, Store::Access access)
    : store(path, Transaction::entity(), access), context(store, Transaction::entity()) {}

} // namespace kovamo
