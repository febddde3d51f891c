#include "ledger/TimeFrame.h"
#include "support/WallClock.h"
#include "support/World.h"

#include <fstream>
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

/// Whether ICU's rules for the zone are those of the C library around a moment: their databases
/// are of different years.
bool agree(const icu::TimeZone& rules, Instant instant) {
    for (const auto hours : {-24h, -2h, -1h, 0h, 1h, 2h, 24h}) {
        std::int32_t standard = 0, summer = 0;
        UErrorCode status = U_ZERO_ERROR;
        const Instant at = instant + hours;
        rules.getOffset(static_cast<UDate>(at.time_since_epoch().count()), false, standard, summer,
                        status);
        if (std::chrono::milliseconds(standard + summer) != WallClock::offset(at))
            return false;
    }
    return true;
}

/// What is wrong with the months as of `now`; nothing where the rules are not the same.
std::optional<std::string> wrong(const icu::TimeZone& rules, Instant now) {
    const auto year = WallClock::bounds(now, 3);
    const Instant start = WallClock::at(WallClock::month(now), 0);
    if (!agree(rules, now) ||
        !std::ranges::all_of(year, [&](Instant bound) { return agree(rules, bound); }))
        return {};
    // Where the clock leaps to midnight itself ICU counts midnight among what is left out.
    if (WallClock::offset(start - 1ms) < WallClock::offset(start))
        return {};
    Clock::setSource([now] { return now; });
    std::string found;
    for (const TimeFrame timeFrame : {0, 1, 2, 3, -7}) {
        const auto bounds = WallClock::bounds(now, timeFrame);
        const auto slots = monthSlots(timeFrame);
        bool same = slots.size() + 1 == bounds.size();
        for (std::size_t i = 0; same && i < slots.size(); ++i)
            same = slots[i].slotStart == bounds[i] && slots[i].slotEnd == bounds[i + 1] &&
                   slots[i].startMonth == WallClock::month(bounds[i]).month;
        const Period period = periodBounds(timeFrame);
        if (!same || period.start != start || period.end != (timeFrame < 1 ? now : bounds.back()))
            found += text(now) + ", frame " + std::to_string(timeFrame) + "; ";
    }
    return found;
}

// Takes some of the zones; all of them, which is minutes of work, where KOVAMO_ALL_ZONES is set.
TEST(TimeFrame, HasTheMonthsThatTheCLibraryCountsInEveryZone) {
    const std::vector<std::string> names = zones();
    ASSERT_GT(names.size(), 400U);
    int compared = 0, disputed = 0;
    const std::size_t step = qEnvironmentVariableIsSet("KOVAMO_ALL_ZONES") ? 1 : 199;
    for (std::size_t i = 41 % step; i < names.size(); i += step) {
        const World world("2024-05-15 10:00", names[i].c_str());
        const WallClock wall(QByteArray::fromStdString(names[i]));
        const std::unique_ptr<icu::TimeZone> rules(icu::TimeZone::createDefault());
        std::vector<Instant> moments;
        for (int month = 0; month < 131 * 12; ++month) {
            const Instant start = WallClock::at({1970, month + 1}, 0);
            moments.insert(moments.end(), {start, start + 350h, start - 1ms});
        }
        // The days around every change of the clock.
        for (Instant day = moments[0], end = moments.back(); day < end; day += 24h)
            if (WallClock::offset(day) != WallClock::offset(day + 24h))
                for (auto now = day - 36h; now <= day + 60h; now += 12h)
                    moments.push_back(now);
        for (const Instant now : moments) {
            const auto found = wrong(*rules, now);
            EXPECT_EQ(found.value_or(""), "") << names[i];
            ++(found ? compared : disputed);
        }
    }
    EXPECT_LT(disputed, compared / 20);
}

TEST(TimeFrame, BeginsWithTheFirstOfTwoMidnights) {
    const World world("2026-11-15 10:00", "America/Havana");
    EXPECT_EQ(text(periodBounds(1).start), text(at("2026-10-31 23:00") + 1h));
}

TEST(TimeFrame, FollowsTheCalendarOfTheLocale) {
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"th_TH.UTF-8", "2024-06-01", "2025-05-31 23:00"},
        {"fa_IR.UTF-8", "2024-05-21", "2025-05-21 23:00"},
        {"zh_CN@calendar=chinese", "2024-05-08", "2025-04-27 23:00"},
        {"de_DE@calendar=unheard", "2024-06-01", "2025-05-31 23:00"}};
    for (const auto& [locale, start, end] : cases) {
        const World world("2024-06-01 10:00", "Asia/Bangkok", locale);
        EXPECT_EQ(text(periodBounds(3).start), text(at(start))) << locale;
        EXPECT_EQ(text(periodBounds(3).end), text(at(end))) << locale;
    }
}

} // namespace
} // namespace kovamo
