#include "EntityDescription.h"

#include "platform/foundation/FatalError.h"

#include <algorithm>

namespace kovamo {

std::size_t EntityDescription::attributeIndex(const QString& attribute) const {
    const auto found = std::ranges::find(attributes, attribute, &AttributeDescription::name);
    if (found == attributes.end())
        fatalError(
            QStringLiteral("The entity \"%1\" has no attribute \"%2\"").arg(name, attribute));
    return static_cast<std::size_t>(found - attributes.begin());
}

std::vector<Value> EntityDescription::initialValues() const {
    std::vector<Value> values(attributes.size());
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        if (attributes[i].isOptional)
            continue;
        if (attributes[i].type == AttributeType::integer32)
            values[i] = std::int32_t{0};
        else if (attributes[i].type == AttributeType::boolean)
            values[i] = false;
    }
    return values;
}

} // namespace kovamo
