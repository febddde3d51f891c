#pragma once

#include "SearchWord.h"
#include "platform/objectstore/EntityDescription.h"

#include <QHash>
#include <functional>
#include <span>

namespace kovamo {

/// What transactions are found by, in some 60 bytes each: their texts folded, one after another.
class SearchIndex {
  public:
    /// What was found, largest amount first as the list of all has it, and earnings minus
    /// spendings.
    struct Found {
        std::vector<ObjectID> ids;
        std::int64_t sum = 0;
    };

    /// `emojiName` gives what an emoji is called.
    explicit SearchIndex(std::function<QString(const QString&)> emojiName);

    /// Makes room for as many transactions.
    void reserve(std::size_t count) { m_entries.reserve(count); }

    /// Adds a transaction, given by its values, that is not in the index.
    void add(ObjectID id, std::span<const Value> values);

    /// Sorts what was added. Required before find(), put() and remove().
    void sort();

    /// Adds a transaction in its place, or changes it.
    void put(ObjectID id, std::span<const Value> values);

    /// Takes out a transaction that may be in the index.
    void remove(ObjectID id);

    /// The transactions that have all of `words`. A sum beyond 64 bits is a fatal error.
    [[nodiscard]] Found find(const std::vector<SearchWord>& words) const;

  private:
    enum class Recurs : std::uint8_t { never, monthly, yearly, otherwise };

    struct Entry {
        ObjectID id;
        Instant start;
        Instant end;
        std::uint32_t title;
        std::uint32_t titleLength;
        std::int32_t amount;
        std::uint32_t emoji : 29;
        std::uint32_t isPositive : 1;
        std::uint32_t recurs : 2;
    };

    struct Search;

    [[nodiscard]] Entry entry(ObjectID id, std::span<const Value> values);
    [[nodiscard]] std::uint32_t emojiNumber(const QString& emoji);
    [[nodiscard]] static bool precedes(const Entry& a, const Entry& b);

    std::function<QString(const QString&)> m_emojiName;
    std::vector<Entry> m_entries;
    /// The titles; what was removed stays until the index goes.
    std::string m_titles;
    /// What each emoji is found by: its name and itself.
    std::vector<std::string> m_emoji;
    QHash<QString, std::uint32_t> m_emojiNumbers;
};

} // namespace kovamo
