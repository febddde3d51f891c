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
    std::uint64_t differing = 0;
    for (const T& value : values)
        differing |= std::invoke(key, value) ^ std::invoke(key, values.front());
    std::vector<T> sorted(values.size());
    for (int shift = 0; shift < 64; shift += 8) {
        const auto digit = [&](const T& value) { return std::invoke(key, value) >> shift & 0xFF; };
        if ((differing >> shift & 0xFF) == 0)
            continue;
        std::array<std::size_t, 257> starts{};
        for (const T& value : values)
            ++starts[digit(value) + 1];
        std::partial_sum(starts.begin(), starts.end(), starts.begin());
        for (const T& value : values)
            sorted[starts[digit(value)]++] = value;
        values.swap(sorted);
    }
}

/// Sorts a random-access container likewise, each element moved once: for elements that are large.
template<typename List, typename Key>
void radixSortInPlace(List& list, Key key) {
    struct Origin {
        std::uint64_t key;
        std::size_t place;
    };
    std::vector<Origin> origins;
    origins.reserve(static_cast<std::size_t>(list.size()));
    for (const auto& element : std::as_const(list))
        origins.push_back({std::invoke(key, element), origins.size()});
    radixSort(origins, &Origin::key);
    // Each circle of elements that take one another's places, from its first one on.
    const auto at = [elements = list.begin()](std::size_t place) -> auto& {
        return elements[static_cast<typename List::difference_type>(place)];
    };
    for (std::size_t first = 0; first < origins.size(); ++first) {
        if (origins[first].place == first)
            continue;
        auto displaced = std::move(at(first));
        std::size_t to = first;
        for (std::size_t from = 0; (from = std::exchange(origins[to].place, to)) != first;
             to = from)
            at(to) = std::move(at(from));
        at(to) = std::move(displaced);
    }
}

} // namespace kovamo
