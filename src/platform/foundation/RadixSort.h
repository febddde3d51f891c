#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstdint>
#include <functional>
#include <numeric>
#include <utility>
#include <vector>

namespace kovamo {

/// The key that sorts a signed integer among others of its type.
template<std::signed_integral T>
[[nodiscard]] constexpr std::uint64_t sortKey(T value) {
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(value)) ^ (std::uint64_t{1} << 63);
}

/// Sorts `values` by an unsigned key of each, smallest first; equal keys keep their order. Takes
/// a pass for each byte in which the keys differ and compares nothing, which pays for thousands of
/// records.
template<typename T, typename Key>
void radixSort(std::vector<T>& values, Key key) {
    std::vector<T> sorted(values.size());
    for (int shift = 0; shift < 64; shift += 8) {
        const auto digit = [&](const T& value) { return std::invoke(key, value) >> shift & 0xFF; };
        std::array<std::size_t, 257> starts{};
        for (const T& value : values)
            ++starts[digit(value) + 1];
        if (std::ranges::find(starts, values.size()) != starts.end())
            continue;
        std::partial_sum(starts.begin(), starts.end(), starts.begin());
        for (const T& value : values)
            sorted[starts[digit(value)]++] = value;
        values.swap(sorted);
    }
}

/// Sorts a random-access container likewise, each element moved once: for elements that are large.
template<typename List, typename Key>
[[nodiscard]] List radixSorted(List list, Key key) {
    struct Origin {
        std::uint64_t key;
        std::size_t place;
    };
    std::vector<Origin> origins;
    origins.reserve(static_cast<std::size_t>(list.size()));
    for (const auto& element : std::as_const(list))
        origins.push_back({std::invoke(key, element), origins.size()});
    radixSort(origins, &Origin::key);
    List sorted;
    sorted.reserve(list.size());
    const auto element = list.begin();
    for (const Origin& origin : origins)
        sorted.push_back(std::move(element[static_cast<typename List::size_type>(origin.place)]));
    return sorted;
}

} // namespace kovamo
