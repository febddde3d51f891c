#include "PersistenceController.h"

#include "Transaction.h"
#include "platform/foundation/FatalError.h"

namespace kovamo {

void unresolvedError(const StoreError& error, const QString& advice) {
    fatalError(QStringLiteral("Unresolved error %1, %2%3")
                   .arg(error.description(), error.userInfoDescription(),
                        advice.isEmpty() ? QString() : u'\n' + advice));
}

const PersistenceController& PersistenceController::shared() {
    static const PersistenceController controller = [] {
        const auto loaded =
            std::make_shared<PersistentContainer>(QStringLiteral("Kovamo"), Transaction::entity());
        loaded->loadPersistentStores([&](const StoreError* error) {
            if (!error)
                return;
            const auto copy = error->isDamage() ? loaded->newestCopy() : std::nullopt;
            unresolvedError(*error, copy ? u"The newest copy of the store is " + *copy : QString());
        });
        loaded->viewContext().setAutomaticallyMergesChangesFromParent(true);
        return PersistenceController{loaded};
    }();
    return controller;
}

} // namespace kovamo
