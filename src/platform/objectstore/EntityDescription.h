#pragma once

#include "Value.h"

#include <QString>
#include <memory>
#include <vector>

namespace kovamo {

class ManagedObject;
class ManagedObjectContext;

/// The identity of a record within its store: its integer primary key.
using ObjectID = std::int64_t;

struct AttributeDescription {
    QString name;
    AttributeType type;
    bool isOptional;
};

/// A sort key: an attribute and its direction.
struct SortDescriptor {
    QString key;
    bool ascending = true;

    friend bool operator==(const SortDescriptor&, const SortDescriptor&) = default;
};

/// What the records of one kind look like. A scalar attribute (not optional) of a fresh record is
/// its type's zero, an optional one is absent.
struct EntityDescription {
    QString name;
    std::vector<AttributeDescription> attributes;
    /// The orders in which the store can walk the records without sorting them.
    std::vector<std::vector<SortDescriptor>> indexes;
    /// The UUID attribute that tells a record from all others, in whatever file it lies.
    QString identity;
    /// Makes the object that stands for a record.
    std::unique_ptr<ManagedObject> (*makeObject)(ManagedObjectContext&, ObjectID);

    /// The position of an attribute; an unknown name is a fatal error that names it.
    [[nodiscard]] std::size_t attributeIndex(const QString& attribute) const;

    /// The values of a fresh record.
    [[nodiscard]] std::vector<Value> initialValues() const;
};

} // namespace kovamo
