#pragma once

#include "Clock.h"

#include <memory>
#include <unicode/timezone.h>

namespace kovamo {

/// The device's time zone by the rules of the C library, which are the system's and are kept up to
/// date; ICU carries those of the year in which it was packaged. A wall time that the clock shows
/// twice is the later one, one that it leaps over counts by the offset before the leap, as ICU
/// wants it of every zone.
class SystemTimeZone final : public icu::TimeZone {
  public:
    /// The zone that the C library has now, by the name `id`.
    explicit SystemTimeZone(const icu::UnicodeString& id);
    ~SystemTimeZone() override;

    void getOffset(UDate date, UBool isLocal, std::int32_t& raw, std::int32_t& saving,
                   UErrorCode& status) const override;
    std::int32_t getOffset(std::uint8_t era, std::int32_t year, std::int32_t month,
                           std::int32_t day, std::uint8_t weekday, std::int32_t timeOfDay,
                           UErrorCode& status) const override;
    std::int32_t getOffset(std::uint8_t era, std::int32_t year, std::int32_t month,
                           std::int32_t day, std::uint8_t weekday, std::int32_t timeOfDay,
                           std::int32_t monthLength, UErrorCode& status) const override;
    /// No offset is told apart into a zone's own and its summer's: the whole is the zone's own.
    [[nodiscard]] std::int32_t getRawOffset() const override;
    void setRawOffset(std::int32_t) override {}
    [[nodiscard]] UBool useDaylightTime() const override { return false; }
    UBool inDaylightTime(UDate, UErrorCode&) const override { return false; }
    [[nodiscard]] SystemTimeZone* clone() const override { return new SystemTimeZone(*this); }
    [[nodiscard]] UClassID getDynamicClassID() const override;

  private:
    struct Days;

    SystemTimeZone(const SystemTimeZone&) = default;

    [[nodiscard]] std::chrono::milliseconds offset(Instant instant) const;
    /// The offset when the clock shows `wall`, counted as if it were UTC.
    [[nodiscard]] std::chrono::milliseconds localOffset(Instant wall) const;

    // What was asked before; all copies of the zone share it.
    std::shared_ptr<Days> m_days;
};

} // namespace kovamo
