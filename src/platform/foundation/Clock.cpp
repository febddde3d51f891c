#include "Clock.h"

#include <cmath>
#include <utility>

namespace kovamo {

namespace {

Clock::Source& currentSource() {
    static Clock::Source source;
    return source;
}

} // namespace

double momentOf(Instant instant) {
    return static_cast<double>(instant.time_since_epoch().count());
}

Instant instantOf(double moment) {
    return Instant(std::chrono::milliseconds(std::llround(moment)));
}

Instant Clock::now() {
    if (const auto& source = currentSource())
        return source();
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

void Clock::setSource(Source source) {
    currentSource() = std::move(source);
}

} // namespace kovamo
