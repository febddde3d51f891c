#include "ManagedObject.h"

#include "ManagedObjectContext.h"
#include "StoreError.h"
#include "platform/foundation/FatalError.h"

namespace kovamo {

void ManagedObject::read() const {
    try {
        m_context.read(*this);
    } catch (const StoreError& error) {
        fatalError(QStringLiteral("A record cannot be read: %1, %2")
                       .arg(error.description(), error.userInfoDescription()));
    }
}

void ManagedObject::setValue(std::size_t index, Value value) {
    if (compare(values()[index], value) == 0)
        return;
    m_values[index] = std::move(value);
    m_context.didUpdate(*this);
}

} // namespace kovamo
