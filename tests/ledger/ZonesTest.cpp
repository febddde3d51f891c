#include "ledger/TimeFrame.h"
#include "support/WallClock.h"
#include "support/World.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <sstream>
#include <unicode/timezone.h>

namespace kovamo {
namespace {

using namespace std::chrono_literals;

/// The names of the zone database: its zones and links.
std::vector<std::string> zones() {
    std::ifstream database("/usr/share/zoneinfo/tzdata.zi");
    std::vector<std::string> names;
    for (std::string line; std::getline(database, line);) {
        std::istringstream words(line);
        std::string kind, first, second;
        words >> kind >> first >> second;
        if (kind == "Z" || kind == "L")
            names.push_back(kind == "Z" ? first : second);
    }
    return names;
}

struct Counts {
    int compared = 0;
    /// The two know different rules for the zone at the time.
    int disputed = 0;
};

class Comparison {
  public:
    explicit Comparison(const std::string& zone)
        : m_world("2024-05-15 10:00", zone.c_str()), m_wall(QByteArray::fromStdString(zone)),
          m_zone(zone), m_rules(icu::TimeZone::createDefault()) {}

    void compareAll(Counts& counts) {
        for (int month = 0; month < 131 * 12; ++month) {
            const Instant start = WallClock::at({1970, month + 1}, 0);
            for (const auto now : {start, start + 350h, start - 1ms})
                compare(now, counts);
        }
        // The days around every change of the clock.
        Instant day = WallClock::at({1970, 1}, 0);
        for (; day < Instant(std::chrono::sys_days(std::chrono::year(2101) / 1 / 1)); day += 24h)
            if (WallClock::offset(day) != WallClock::offset(day + 24h))
                for (auto now = day - 36h; now <= day + 60h; now += 12h)
                    compare(now, counts);
    }

  private:
    bool agree(Instant instant) const {
        std::int32_t standard = 0, summer = 0;
        UErrorCode status = U_ZERO_ERROR;
        m_rules->getOffset(static_cast<UDate>(instant.time_since_epoch().count()), false, standard,
                           summer, status);
        return std::chrono::milliseconds(standard + summer) == WallClock::offset(instant);
    }

    bool agreeAround(Instant instant) const {
        for (const auto hours : {-24h, -2h, -1h, 0h, 1h, 2h, 24h})
            if (!agree(instant + hours))
                return false;
        return true;
    }

    void compare(Instant now, Counts& counts) {
        const auto expected = WallClock::slots(now, 3);
        const auto [year, month] = WallClock::month(now);
        const Instant start = WallClock::at({year, month}, 0);
        bool known = agree(now) && agreeAround(start);
        for (const auto& slot : expected)
            known = known && agreeAround(slot.end);
        if (!known) {
            ++counts.disputed;
            return;
        }
        ++counts.compared;
        Clock::setSource([now] { return now; });
        const auto slots = monthSlots(3);
        for (std::size_t i = 0; i < slots.size(); ++i)
            if (slots[i].slotStart != expected[i].start || slots[i].slotEnd != expected[i].end ||
                slots[i].startMonth != WallClock::month(expected[i].start).month)
                ADD_FAILURE() << m_zone << ' ' << text(now) << ", month " << i;
        for (const TimeFrame timeFrame : {0, 1, 2, 3}) {
            const Period period = periodBounds(timeFrame);
            const auto end = timeFrame == 0 ? now : WallClock::slots(now, timeFrame).back().end;
            if (period.start != start || period.end != end)
                ADD_FAILURE() << m_zone << ' ' << text(now) << ", frame " << timeFrame;
        }
    }

    World m_world;
    WallClock m_wall;
    std::string m_zone;
    std::unique_ptr<icu::TimeZone> m_rules;
};

// Takes some of the zones; all of them, which is minutes of work, where KOVAMO_ALL_ZONES is set.
TEST(TimeFrame, HasTheMonthsThatTheCLibraryCountsInEveryZone) {
    const std::vector<std::string> names = zones();
    ASSERT_GT(names.size(), 400U);
    const std::size_t step = qEnvironmentVariableIsSet("KOVAMO_ALL_ZONES") ? 1 : 199;
    Counts all;
    std::string disputed;
    for (std::size_t i = 41 % step; i < names.size(); i += step) {
        Counts zone;
        Comparison(names[i]).compareAll(zone);
        all.compared += zone.compared;
        all.disputed += zone.disputed;
        if (zone.disputed > 0)
            disputed += names[i] + ' ' + std::to_string(zone.disputed) + "; ";
    }
    std::cout << all.compared << " moments compared, with other rules " << disputed << '\n';
    EXPECT_LT(all.disputed, all.compared / 20);
}

} // namespace
} // namespace kovamo
