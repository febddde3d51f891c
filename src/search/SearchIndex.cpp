#include "SearchIndex.h"

#include "platform/foundation/CheckedArithmetic.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <utility>

namespace kovamo {

namespace {

// Within 40 bits of seconds, which go far beyond the years of four digits.
constexpr std::int64_t seconds = (std::int64_t{1} << 40) - 1;
constexpr Instant earliest{std::chrono::seconds(-seconds / 2)};
constexpr Instant latest = earliest + std::chrono::seconds(seconds);

template<typename T>
T valueOr(const Value& value, T otherwise) {
    return isAbsent(value) ? otherwise : std::get<T>(value);
}

bool beginsWith(std::int32_t amount, std::string_view digits) {
    char text[16];
    const auto [end, error] = std::to_chars(text, text + sizeof text, amount);
    return std::string_view(text, static_cast<std::size_t>(end - text)).starts_with(digits);
}

} // namespace

/// A word with what is the same for all entries of a kind, found once.
struct SearchIndex::Search {
    const SearchWord& word;
    const std::vector<Kind>& kinds;
    std::vector<bool> hasKind;

    Search(const SearchWord& searched, const SearchIndex& index)
        : word(searched), kinds(index.m_kinds) {
        std::optional<Recurs> recurs;
        if (word.recurringType == u"monthly")
            recurs = Recurs::monthly;
        else if (word.recurringType == u"yearly")
            recurs = Recurs::yearly;
        for (const Kind& kind : kinds)
            hasKind.push_back(index.m_emoji[kind.emoji].find(word.text) != std::string::npos ||
                              word.isPositive == kind.isPositive || recurs == kind.recurs);
    }

    [[nodiscard]] bool fits(const Entry& entry, std::string_view title) const {
        return title.find(word.text) != std::string_view::npos || hasKind[entry.kind] ||
               (!word.digits.empty() && beginsWith(entry.amount, word.digits)) ||
               (word.year && fallsIn(*word.year, entry));
    }

    [[nodiscard]] bool fallsIn(const Period& year, const Entry& entry) const {
        const Instant start = earliest + std::chrono::seconds(entry.start);
        return start < year.end && kinds[entry.kind].end.value_or(start) >= year.start;
    }
};

SearchIndex::SearchIndex(std::function<QString(const QString&)> emojiName)
    : m_emojiName(std::move(emojiName)) {}

bool SearchIndex::precedes(const Entry& a, const Entry& b) {
    return a.amount != b.amount ? a.amount > b.amount : a.id < b.id;
}

std::uint32_t SearchIndex::emojiNumber(const QString& emoji) {
    const auto known = m_emojiNumbers.constFind(emoji);
    if (known != m_emojiNumbers.constEnd())
        return *known;
    const auto number = static_cast<std::uint32_t>(m_emoji.size());
    m_emoji.push_back(searchText(m_emojiName(emoji)) + '\n' + searchText(emoji));
    return *m_emojiNumbers.insert(emoji, number);
}

std::uint32_t SearchIndex::kindNumber(const Kind& kind) {
    const auto [known, isNew] =
        m_kindNumbers.try_emplace(kind, static_cast<std::uint32_t>(m_kinds.size()));
    if (isNew)
        m_kinds.push_back(kind);
    return known->second;
}

SearchIndex::Entry SearchIndex::entry(ObjectID id, std::span<const Value> values) {
    const auto attribute = [values]<typename T>(Transaction::Attribute name, T otherwise) {
        return valueOr(values[name], std::move(otherwise));
    };
    // Another program can store a title of any length, and to fold it takes several times as much.
    constexpr qsizetype longest = 100'000;
    std::string title = searchText(attribute(Transaction::Title, QString()).left(longest));
    std::ranges::replace(title, '\0', '\n'); // a zero ends a title in the index
    const QString type = attribute(Transaction::RecurringType, QString());
    const bool isRecurring = attribute(Transaction::IsRecurring, false);
    const Recurs recurs = !isRecurring         ? Recurs::never
                          : type == u"monthly" ? Recurs::monthly
                          : type == u"yearly"  ? Recurs::yearly
                                               : Recurs::otherwise;
    // Without a start there is no year.
    const Instant start = attribute(Transaction::StartDate, Instant::max());
    const Value& end = values[Transaction::EndDate];
    const std::uint32_t kind =
        kindNumber({.emoji = emojiNumber(attribute(Transaction::Emoji, QString())),
                    .isPositive = attribute(Transaction::IsPositive, false),
                    .recurs = recurs,
                    .end = isRecurring && !isAbsent(end) ? std::optional(std::get<Instant>(end))
                                                         : std::nullopt});
    const auto sinceEarliest =
        std::chrono::floor<std::chrono::seconds>(std::clamp(start, earliest, latest) - earliest);
    const auto place = static_cast<std::uint32_t>(m_titles.size());
    m_titles.append(title.c_str(), std::ssize(title) + 1);
    return {.id = id,
            .start = static_cast<std::uint64_t>(sinceEarliest.count()) & seconds,
            .kind = kind & 0xFFFFFF,
            .title = place,
            .amount = attribute(Transaction::Amount, std::int32_t{0})};
}

void SearchIndex::add(ObjectID id, std::span<const Value> values) {
    m_entries.push_back(entry(id, values));
}

void SearchIndex::sort() {
    std::ranges::sort(m_entries, precedes);
}

void SearchIndex::put(ObjectID id, std::span<const Value> values) {
    remove(id);
    const Entry added = entry(id, values);
    m_entries.insert(std::ranges::upper_bound(m_entries, added, precedes), added);
}

void SearchIndex::remove(ObjectID id) {
    std::erase_if(m_entries, [id](const Entry& entry) { return entry.id == id; });
}

SearchIndex::Found SearchIndex::find(const std::vector<SearchWord>& words) const {
    std::vector<Search> searches;
    for (const SearchWord& word : words)
        searches.emplace_back(word, *this);
    Found found;
    found.ids.reserve(m_entries.size()); // to grow step by step takes twice the memory
    for (const Entry& entry : m_entries) {
        const std::string_view title(m_titles.constData() + entry.title);
        if (!std::ranges::all_of(searches,
                                 [&](const Search& search) { return search.fits(entry, title); }))
            continue;
        found.ids.push_back(entry.id);
        const std::int64_t amount = entry.amount;
        found.sum = m_kinds[entry.kind].isPositive ? checkedAdd(found.sum, amount)
                                                   : checkedSubtract(found.sum, amount);
    }
    return found;
}

} // namespace kovamo
