#pragma once

#include "Predicate.h"

#include <optional>

namespace kovamo {

/// Which records to fetch, and in which order. Records that the sort keys do not tell apart come
/// in the order in which they were inserted.
struct FetchRequest {
    QString entityName;
    Predicate predicate = {};
    std::vector<SortDescriptor> sortDescriptors = {};
    /// At most this many records.
    std::optional<int> fetchLimit = std::nullopt;

    /// Whether both ask for the same in the same words.
    friend bool operator==(const FetchRequest&, const FetchRequest&) = default;

    /// Whether a record with the identity `a` and `aValues` comes before another.
    [[nodiscard]] bool precedes(const EntityDescription& entity, ObjectID a,
                                std::span<const Value> aValues, ObjectID b,
                                std::span<const Value> bValues) const;
};

} // namespace kovamo
