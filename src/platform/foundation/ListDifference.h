#pragma once

#include <algorithm>
#include <iterator>

namespace kovamo {

/// Where two lists differ: between what both begin with and what both end with.
struct ListDifference {
    int first = 0;
    /// How many elements from the first on the one list has, and how many the other has instead.
    int removed = 0;
    int inserted = 0;
};

/// Where `after` differs from `before`.
template<typename List>
[[nodiscard]] ListDifference listDifference(const List& before, const List& after) {
    const auto common = std::min(std::ssize(before), std::ssize(after));
    const auto head =
        std::mismatch(before.cbegin(), before.cbegin() + common, after.cbegin()).first -
        before.cbegin();
    const auto tail =
        std::mismatch(before.crbegin(), before.crbegin() + (common - head), after.crbegin()).first -
        before.crbegin();
    return {static_cast<int>(head), static_cast<int>(std::ssize(before) - head - tail),
            static_cast<int>(std::ssize(after) - head - tail)};
}

} // namespace kovamo
