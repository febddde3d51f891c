#pragma once

#include "FatalError.h"

#include <concepts>

namespace kovamo {

/// The sum of two integers of one type; an overflow is a fatal error, never a wrap.
template<std::integral T>
[[nodiscard]] T checkedAdd(T a, T b) {
    T sum{};
    if (__builtin_add_overflow(a, b, &sum))
        fatalError(QStringLiteral("Arithmetic overflow: %1 + %2").arg(a).arg(b));
    return sum;
}

/// The difference of two integers of one type; an overflow is a fatal error, never a wrap.
template<std::integral T>
[[nodiscard]] T checkedSubtract(T a, T b) {
    T difference{};
    if (__builtin_sub_overflow(a, b, &difference))
        fatalError(QStringLiteral("Arithmetic overflow: %1 - %2").arg(a).arg(b));
    return difference;
}

/// The product of two integers as a `T`; a product that `T` cannot hold is a fatal error.
template<std::integral T>
[[nodiscard]] T checkedMultiply(T a, T b) {
    T product{};
    if (__builtin_mul_overflow(a, b, &product))
        fatalError(QStringLiteral("Arithmetic overflow: %1 × %2").arg(a).arg(b));
    return product;
}

} // namespace kovamo
