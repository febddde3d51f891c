#pragma once

#include "platform/objectstore/EntityDescription.h"

#include <QStringList>

namespace kovamo {

/// The table of an entity's records as SQL words it: an integer primary key "pk" and a column for
/// each attribute.
struct EntityTable {
    explicit EntityTable(const EntityDescription& entity);

    /// Its quoted name.
    QString name;
    /// The quoted names of the attributes' columns.
    QStringList columns;
    /// The statements that make it and its indexes.
    QStringList definitions;
    /// The columns of the record with an identity.
    QString selection;
    /// The columns and the identity of every record above an identity, in their order.
    QString everything;
    /// The columns and the identity of the records whose identities a JSON array holds.
    QString several;
    /// The first record with a value that its attribute cannot have, and the attribute's name.
    QString wrongValue;
    /// Takes the columns' values, then the identity.
    QString insertion;
    /// Takes the columns' values, then the identity.
    QString update;
    /// Takes the identity.
    QString deletion;
};

/// The columns to sort by, the most important first.
[[nodiscard]] QString sortKeys(const std::vector<SortDescriptor>& descriptors);

} // namespace kovamo
