#pragma once

#include "SearchWord.h"
#include "platform/objectstore/EntityDescription.h"

#include <QByteArray>
#include <QHash>
#include <functional>
#include <map>
#include <span>

namespace kovamo {

/// What transactions are found by, in 24 bytes each and their titles, folded, one after another.
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

    /// What many transactions have in common.
    struct Kind {
        std::uint32_t emoji;
        bool isPositive;
        Recurs recurs;
        /// The last moment of what recurs; nothing where that is its start.
        std::optional<Instant> end;

        friend auto operator<=>(const Kind&, const Kind&) = default;
    };

    struct Entry {
        ObjectID id;
        /// In seconds from the earliest one on: years begin with whole seconds.
        std::uint64_t start : 40;
        std::uint64_t kind : 24;
        std::uint32_t title;
        std::int32_t amount;
    };

    struct Search;

    [[nodiscard]] Entry entry(ObjectID id, std::span<const Value> values);
    [[nodiscard]] std::uint32_t emojiNumber(const QString& emoji);
    [[nodiscard]] std::uint32_t kindNumber(const Kind& kind);
    [[nodiscard]] static bool precedes(const Entry& a, const Entry& b);

    std::function<QString(const QString&)> m_emojiName;
    std::vector<Entry> m_entries;
    /// The titles, each with a zero after it; what was removed stays until the index goes. (A
    /// QByteArray grows without a copy.)
    QByteArray m_titles;
    std::vector<Kind> m_kinds;
    std::map<Kind, std::uint32_t> m_kindNumbers;
    /// What each emoji is found by: its name and itself.
    std::vector<std::string> m_emoji;
    QHash<QString, std::uint32_t> m_emojiNumbers;
};

} // namespace kovamo
