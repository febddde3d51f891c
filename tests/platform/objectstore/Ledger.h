#pragma once

#include "platform/objectstore/PersistentContainer.h"
#include "support/World.h"

#include <random>

namespace kovamo {

/// A small entity with an attribute of every type.
class Entry : public ManagedObject {
  public:
    enum Attribute : std::size_t { Amount, Note, Day, Id, Flag };

    Entry(ManagedObjectContext& context, ObjectID id) : ManagedObject(context, id) {}
    static const EntityDescription& entity();

    [[nodiscard]] std::int32_t amount() const { return scalar<std::int32_t>(Amount); }
    [[nodiscard]] const Value& at(Attribute attribute) const { return values()[attribute]; }
    void set(Attribute attribute, Value value) { setValue(attribute, std::move(value)); }
};

/// A container of entries on a real file, loaded.
class Ledger {
  public:
    Ledger();

    PersistentContainer container;
    ManagedObjectContext& context;

    Entry& add(std::int32_t amount, const Value& note = {});
    /// The amounts of the entries that a request fetches, in order.
    std::vector<std::int32_t> amounts(const FetchRequest& request);
    /// Runs SQL on the store's file as another program would.
    void elsewhere(const std::string& sql) const;
};

/// A request for entries.
[[nodiscard]] FetchRequest entries(const Predicate& predicate = {},
                                   std::vector<SortDescriptor> sortDescriptors = {});

} // namespace kovamo
