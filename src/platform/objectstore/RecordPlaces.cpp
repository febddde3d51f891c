#include "RecordPlaces.h"

#include "platform/objectstore/store/Store.h"

namespace kovamo {

RecordPlaces::RecordPlaces(Store& store, const EntityDescription& entity)
    : m_attribute(entity.attributeIndex(entity.identity)) {
    store.forEach([&](ObjectID key, std::span<const Value> values) {
        m_taken.insert(key);
        m_places.insert(uuidIn(values), key);
        return true;
    });
    m_places.remove(QUuid());
    m_unused = store.unusedID();
}

QUuid RecordPlaces::uuidIn(std::span<const Value> values) const {
    const auto* uuid = std::get_if<QUuid>(&values[m_attribute]);
    return uuid ? *uuid : QUuid();
}

ObjectID RecordPlaces::placeOf(ObjectID former, std::span<const Value> values) {
    if (values.empty())
        return former;
    const QUuid uuid = uuidIn(values);
    const auto found = m_places.constFind(uuid);
    if (found != m_places.constEnd())
        return *found;
    return m_taken.contains(former) ? unused() : former;
}

} // namespace kovamo
