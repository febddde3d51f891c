#include "SearchIndex.h"

#include "platform/foundation/CheckedArithmetic.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <utility>

namespace kovamo {

namespace {

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

/// A word with what is the same for all entries, found once.
struct SearchIndex::Search {
    const SearchWord& word;
    std::vector<bool> hasEmoji;
    std::optional<Recurs> recurs;

    Search(const SearchWord& searched, const SearchIndex& index) : word(searched) {
        for (const std::string& text : index.m_emoji)
            hasEmoji.push_back(text.find(word.text) != std::string::npos);
        if (word.recurringType == u"monthly")
            recurs = Recurs::monthly;
        else if (word.recurringType == u"yearly")
            recurs = Recurs::yearly;
    }

    [[nodiscard]] bool fits(const Entry& entry, std::string_view title) const {
        return title.find(word.text) != std::string_view::npos || hasEmoji[entry.emoji] ||
               (!word.digits.empty() && beginsWith(entry.amount, word.digits)) ||
               (word.isPositive && *word.isPositive == entry.isPositive) ||
               (recurs && static_cast<std::uint32_t>(*recurs) == entry.recurs) ||
               (word.year && entry.start < word.year->end && entry.end >= word.year->start);
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

SearchIndex::Entry SearchIndex::entry(ObjectID id, std::span<const Value> values) {
    const auto attribute = [values]<typename T>(Transaction::Attribute name, T otherwise) {
        return valueOr(values[name], std::move(otherwise));
    };
    // Another program can store a title of any length, and to fold it takes several times as much.
    constexpr qsizetype longest = 100'000;
    const std::string title = searchText(attribute(Transaction::Title, QString()).left(longest));
    const QString type = attribute(Transaction::RecurringType, QString());
    const bool isRecurring = attribute(Transaction::IsRecurring, false);
    const Recurs recurs = !isRecurring         ? Recurs::never
                          : type == u"monthly" ? Recurs::monthly
                          : type == u"yearly"  ? Recurs::yearly
                                               : Recurs::otherwise;
    // Without a start there is no year.
    const Instant start = attribute(Transaction::StartDate, Instant::max());
    const auto place = static_cast<std::uint32_t>(m_titles.size());
    m_titles += title;
    return {.id = id,
            .start = start,
            .end = isRecurring ? attribute(Transaction::EndDate, start) : start,
            .title = place,
            .titleLength = static_cast<std::uint32_t>(title.size()),
            .amount = attribute(Transaction::Amount, std::int32_t{0}),
            .emoji = emojiNumber(attribute(Transaction::Emoji, QString())) & 0x1FFFFFFF,
            .isPositive = attribute(Transaction::IsPositive, false),
            .recurs = static_cast<std::uint32_t>(recurs) & 3};
}

void SearchIndex::add(ObjectID id, std::span<const Value> values) {
    m_entries.push_back(entry(id, values));
}

void SearchIndex::sort() {
    std::ranges::sort(m_entries, precedes);
    m_titles.shrink_to_fit();
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
    for (const Entry& entry : m_entries) {
        const std::string_view title(m_titles.data() + entry.title, entry.titleLength);
        if (!std::ranges::all_of(searches,
                                 [&](const Search& search) { return search.fits(entry, title); }))
            continue;
        found.ids.push_back(entry.id);
        const std::int64_t amount = entry.amount;
        found.sum =
            entry.isPositive ? checkedAdd(found.sum, amount) : checkedSubtract(found.sum, amount);
    }
    return found;
}

} // namespace kovamo
