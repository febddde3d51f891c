#pragma once

#include <chrono>
#include <functional>

namespace kovamo {

/// A date-time: milliseconds since 1970-01-01 00:00 UTC, leap seconds not counted.
using Instant = std::chrono::sys_time<std::chrono::milliseconds>;

/// An instant as QML holds it, and back: milliseconds since 1970 UTC as a real number.
[[nodiscard]] double momentOf(Instant instant);
[[nodiscard]] Instant instantOf(double moment);

/// Where the system's time comes from; nothing else asks the machine for it.
class Clock {
  public:
    using Source = std::function<Instant()>;

    /// The current instant.
    [[nodiscard]] static Instant now();

    /// Makes now() ask `source`; an empty source is the machine's clock again.
    static void setSource(Source source);
};

} // namespace kovamo
