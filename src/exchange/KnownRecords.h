#pragma once

#include "platform/objectstore/EntityDescription.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <optional>
#include <span>
#include <unordered_map>

namespace kovamo {

/// The records of a store during an import, by their ids or, without one, by their contents. They
/// lie in a temporary database that SQLite deletes with the value, so that memory stays small.
class KnownRecords {
  public:
    /// How a record compares with the known one.
    enum class Standing { added, changed, same, older, conflict };

    KnownRecords();

    /// Takes note of a stored record: of two with one id, of the newer.
    void addStored(ObjectID id, std::span<const Value> values);

    struct Verdict {
        Standing standing;
        /// The identity of the known record where there is one.
        ObjectID id = 0;
    };

    /// Compares a record that comes in with what is known, and from then on knows it instead where
    /// it wins; one that is only new or known never wins. `nextID` is its identity if it is added.
    [[nodiscard]] Verdict take(ObjectID nextID, std::span<const Value> values,
                               bool isOnlyNewOrKnown = false);

  private:
    struct Counts {
        qint64 stored = 0;
        qint64 taken = 0;
    };

    [[nodiscard]] static bool insert(SQLite::Statement& insertion, ObjectID id,
                                     std::span<const Value> values, std::uint64_t digest);
    [[nodiscard]] std::uint64_t digest(std::span<const Value> values);

    SQLite::Database m_database;
    std::optional<SQLite::Statement> m_storedInsertion;
    std::optional<SQLite::Statement> m_insertion;
    std::optional<SQLite::Statement> m_selection;
    std::optional<SQLite::Statement> m_update;
    // Those without an id, by their digest.
    std::unordered_map<std::uint64_t, Counts> m_nameless;
    std::string m_bytes;
};

} // namespace kovamo
