#pragma once

#include "platform/objectstore/PersistentContainer.h"

#include <memory>

namespace kovamo {

/// Stops the program over a store that could not be loaded or saved, with the message
/// "Unresolved error ", the error's description, ", " and its user info. `advice` is a line that
/// follows it.
[[noreturn]] void unresolvedError(const StoreError& error, const QString& advice = {});

/// Owns the one container of the system, named "Kovamo".
struct PersistenceController {
    std::shared_ptr<PersistentContainer> container;

    /// The one instance of the process; the store is loaded at its first use. A store that cannot
    /// be loaded ends in unresolvedError(), which names the newest copy of one that is damaged.
    static const PersistenceController& shared();
};

} // namespace kovamo
