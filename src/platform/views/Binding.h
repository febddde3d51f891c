#pragma once

#include <functional>

namespace kovamo {

/// A value that is owned elsewhere, to read and to write.
template<class T>
struct Binding {
    std::function<T()> get;
    std::function<void(T)> set;

    /// A binding that always reads `value`; what is written to it is lost.
    [[nodiscard]] static Binding constant(T value) {
        return {[value] { return value; }, [](T) {}};
    }
};

} // namespace kovamo
