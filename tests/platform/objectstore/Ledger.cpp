#include "Ledger.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

namespace kovamo {

const EntityDescription& Entry::entity() {
    using enum AttributeType;
    static const EntityDescription entity{
        .name = QStringLiteral("Entry"),
        .attributes = {{QStringLiteral("amount"), integer32, false},
                       {QStringLiteral("note"), string, true},
                       {QStringLiteral("day"), date, true},
                       {QStringLiteral("id"), uuid, true},
                       {QStringLiteral("flag"), boolean, false}},
        .indexes = {{{QStringLiteral("flag")}, {QStringLiteral("day")}}},
        .makeObject = [](ManagedObjectContext& context, ObjectID id)
            -> std::unique_ptr<ManagedObject> { return std::make_unique<Entry>(context, id); },
    };
    return entity;
}

namespace {

ManagedObjectContext& loaded(PersistentContainer& container) {
    container.loadPersistentStores([](const StoreError* error) {
        ASSERT_EQ(error, nullptr) << error->description().toStdString();
    });
    return container.viewContext();
}

} // namespace

Ledger::Ledger()
    : container(QStringLiteral("Ledger"), Entry::entity()), context(loaded(container)) {}

Entry& Ledger::add(std::int32_t amount, const Value& note) {
    Entry& entry = context.insert<Entry>();
    entry.set(Entry::Amount, amount);
    entry.set(Entry::Note, note);
    return entry;
}

std::vector<std::int32_t> Ledger::amounts(const FetchRequest& request) {
    std::vector<std::int32_t> amounts;
    for (const Entry* entry : context.fetch<Entry>(request))
        amounts.push_back(entry->amount());
    return amounts;
}

void Ledger::elsewhere(const std::string& sql) const {
    SQLite::Database database(container.storePath().toStdString(), SQLite::OPEN_READWRITE);
    database.exec(sql);
}

FetchRequest entries(const Predicate& predicate, std::vector<SortDescriptor> sortDescriptors) {
    return {.entityName = QStringLiteral("Entry"),
            .predicate = predicate,
            .sortDescriptors = std::move(sortDescriptors)};
}

} // namespace kovamo
