#include "Clock.h"

#include <utility>

namespace kovamo {

namespace {

Clock::Source& currentSource() {
    static Clock::Source source;
    return source;
}

} // namespace

Instant Clock::now() {
    if (const auto& source = currentSource())
        return source();
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

void Clock::setSource(Source source) {
    currentSource() = std::move(source);
}

} // namespace kovamo
