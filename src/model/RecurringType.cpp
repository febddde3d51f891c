#include "RecurringType.h"

namespace kovamo {

QString storedName(RecurringType type) {
    return type == RecurringType::yearly ? QStringLiteral("yearly") : QStringLiteral("monthly");
}

std::optional<RecurringType> recurringType(const std::optional<QString>& name) {
    for (const RecurringType type : {RecurringType::monthly, RecurringType::yearly})
        if (name == storedName(type))
            return type;
    return std::nullopt;
}

} // namespace kovamo
