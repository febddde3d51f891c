#pragma once

#include "platform/desktop/SystemColors.h"

#include <any>
#include <concepts>
#include <memory>
#include <utility>

namespace kovamo {

/// A key of the environment: names the type of its value and the value where none is set.
template<class K>
concept EnvironmentKey = requires {
    typename K::Value;
    { K::defaultValue() } -> std::same_as<const typename K::Value&>;
};

/// What a view is told by the views around it. A value: setting a key yields another environment
/// and leaves this one as it is, so the innermost setting wins for what it encloses. Open: a room
/// adds a key of its own by declaring an `EnvironmentKey`.
class EnvironmentValues {
  public:
    /// The value set for `K`, or the key's default; valid while this environment lives.
    template<EnvironmentKey K>
    [[nodiscard]] const typename K::Value& value() const {
        for (const Node* node = m_innermost.get(); node; node = node->outer.get())
            if (node->key == identity<K>())
                return *std::any_cast<typename K::Value>(&node->value);
        return K::defaultValue();
    }

    /// This environment with `value` for `K`.
    template<EnvironmentKey K>
    [[nodiscard]] EnvironmentValues setting(typename K::Value value) const {
        EnvironmentValues values;
        values.m_innermost =
            std::make_shared<const Node>(Node{identity<K>(), std::move(value), m_innermost});
        return values;
    }

  private:
    struct Node {
        const void* key;
        std::any value;
        std::shared_ptr<const Node> outer;
    };

    template<EnvironmentKey K>
    static const void* identity() {
        static const char place = 0;
        return &place;
    }

    std::shared_ptr<const Node> m_innermost;
};

/// A view's field that stands for the environment's value of `K`.
template<EnvironmentKey K>
struct Environment {
    /// The value in `environment`; outside of one, the key's default.
    [[nodiscard]] typename K::Value value(const EnvironmentValues& environment = {}) const {
        return environment.value<K>();
    }
};

/// The appearance that colours are resolved in.
struct ColorSchemeKey {
    using Value = ColorScheme;
    static const Value& defaultValue() {
        static constexpr Value light = ColorScheme::light;
        return light;
    }
};

} // namespace kovamo
