#include "Transaction.h"

namespace kovamo {

SharedPresentation Transaction::presentation() const {
    const std::span<const Value> current = values();
    if (!m_presentation)
        m_presentation = std::make_shared<const TransactionPresentation>(current);
    return m_presentation;
}

const EntityDescription& Transaction::entity() {
    using enum AttributeType;
    static const EntityDescription entity{
        .name = QStringLiteral("Transaction"),
        .attributes =
            {
                {QStringLiteral("amount"), integer32, false},
                {QStringLiteral("emoji"), string, true},
                {QStringLiteral("endDate"), date, true},
                {QStringLiteral("id"), uuid, true},
                {QStringLiteral("isPositive"), boolean, false},
                {QStringLiteral("isRecurring"), boolean, false},
                {QStringLiteral("recurringType"), string, true},
                {QStringLiteral("startDate"), date, true},
                {QStringLiteral("timestamp"), date, true},
                {QStringLiteral("title"), string, true},
            },
        .indexes =
            {
                {{QStringLiteral("isRecurring")}, {QStringLiteral("startDate")}},
                {{QStringLiteral("amount"), false}},
            },
        .identity = QStringLiteral("id"),
        .makeObject = [](ManagedObjectContext& context,
                         ObjectID id) -> std::unique_ptr<ManagedObject> {
            return std::make_unique<Transaction>(context, id);
        },
    };
    return entity;
}

FetchRequest Transaction::fetchRequest() {
    return {.entityName = entity().name};
}

} // namespace kovamo
