#include "ManagedObject.h"

#include "ManagedObjectContext.h"
#include "platform/foundation/FatalError.h"
#include "platform/objectstore/file/StoreError.h"

namespace kovamo {

bool ManagedObject::exists() const {
    try {
        return (!m_values.empty() && !m_isStale) || m_context.read(*this);
    } catch (const StoreError& error) {
        fatalError(QStringLiteral("A record cannot be read: %1, %2")
                       .arg(error.description(), error.userInfoDescription()));
    }
}

void ManagedObject::require() const {
    if (!exists())
        fatalError(QStringLiteral("There is no record %1").arg(m_objectID));
}

void ManagedObject::take(std::vector<Value> values) const {
    m_isStale = false;
    if (values.empty())
        return;
    m_values = std::move(values);
    valuesChanged();
}

void ManagedObject::setValue(std::size_t index, Value value) {
    if (compare(values()[index], value) == 0)
        return;
    m_values[index] = std::move(value);
    valuesChanged();
    m_context.didUpdate(*this);
}

} // namespace kovamo
