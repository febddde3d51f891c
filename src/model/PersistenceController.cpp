#include "PersistenceController.h"

#include "Transaction.h"
#include "platform/foundation/FatalError.h"

namespace kovamo {

void unresolvedError(const StoreError& error) {
    fatalError(QStringLiteral("Unresolved error %1, %2")
                   .arg(error.description(), error.userInfoDescription()));
}

const PersistenceController& PersistenceController::shared() {
    static const PersistenceController controller = [] {
        const auto loaded =
            std::make_shared<PersistentContainer>(QStringLiteral("Kovamo"), Transaction::entity());
        loaded->loadPersistentStores([](const StoreError* error) {
            if (error)
                unresolvedError(*error);
        });
        loaded->viewContext().setAutomaticallyMergesChangesFromParent(true);
        return PersistenceController{loaded};
    }();
    return controller;
}

} // namespace kovamo
