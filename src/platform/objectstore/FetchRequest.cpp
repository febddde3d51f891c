#include "FetchRequest.h"

namespace kovamo {

bool FetchRequest::precedes(const EntityDescription& entity, ObjectID a,
                            std::span<const Value> aValues, ObjectID b,
                            std::span<const Value> bValues) const {
    for (const SortDescriptor& descriptor : sortDescriptors) {
        const std::size_t key = entity.attributeIndex(descriptor.key);
        const auto order = compare(aValues[key], bValues[key]);
        if (order != 0)
            return (order < 0) == descriptor.ascending;
    }
    return a < b;
}

} // namespace kovamo
