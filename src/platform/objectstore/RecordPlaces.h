#pragma once

#include "EntityDescription.h"

#include <QHash>
#include <algorithm>
#include <span>
#include <unordered_set>

namespace kovamo {

class Store;

/// Where a file that has taken the place of another has the records that were known before. The
/// same record may have another primary key there, and its former key may be another record's: what
/// tells it is the entity's UUID attribute.
class RecordPlaces {
  public:
    /// Reads the UUIDs of all records of `store`. Throws StoreError.
    RecordPlaces(Store& store, const EntityDescription& entity);

    /// Keeps `key` out of what unused() gives.
    void avoid(ObjectID key) { m_unused = std::max(m_unused, key + 1); }

    /// The key of the record that had the key `former` and has `values`, empty where nobody has
    /// read them. A record that the file does not have keeps its key if that is free, and gets an
    /// unused one otherwise.
    [[nodiscard]] ObjectID placeOf(ObjectID former, std::span<const Value> values);

    /// A key that no record has; another one at each call.
    [[nodiscard]] ObjectID unused() { return m_unused++; }

  private:
    [[nodiscard]] QUuid uuidIn(std::span<const Value> values) const;

    std::size_t m_attribute;
    std::unordered_set<ObjectID> m_taken;
    QHash<QUuid, ObjectID> m_places;
    ObjectID m_unused = 0;
};

} // namespace kovamo
