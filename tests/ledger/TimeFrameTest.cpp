#include "ledger/TimeFrame.h"
#include "support/WallClock.h"
#include "support/World.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace kovamo {
namespace {

using namespace std::chrono_literals;

/// The names of the zone database, its zones and links, that are installed.
std::vector<std::string> zones() {
    const std::filesystem::path folder = "/usr/share/zoneinfo";
    std::ifstream database(folder / "tzdata.zi");
    std::vector<std::string> names;
    for (std::string line; std::getline(database, line);) {
        std::istringstream words(line);
        std::string kind, first, second;
        words >> kind >> first >> second;
        const std::string& name = kind == "Z" ? first : second;
        if ((kind == "Z" || kind == "L") && std::filesystem::exists(folder / name))
            names.push_back(name);
    }
    return names;
}

/// What is wrong with the months as of `now`.
std::string wrong(Instant now) {
    const Instant start = WallClock::at(WallClock::month(now), 0);
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
    ASSERT_GT(names.size(), 300U);
    const std::size_t step = qEnvironmentVariableIsSet("KOVAMO_ALL_ZONES") ? 1 : 199;
    for (std::size_t i = 41 % step; i < names.size(); i += step) {
        const World world("2024-05-15 10:00", names[i].c_str());
        const WallClock wall(QByteArray::fromStdString(names[i]));
        std::vector<Instant> moments;
        // ICU looks for a clock set back by up to six hours; Vostok's was by seven in 1994.
        for (int month = 0; month < 94 * 12; ++month) {
            const Instant start = WallClock::at({2007, month + 1}, 0);
            moments.insert(moments.end(), {start, start + 350h, start - 1ms});
        }
        // The days around every change of the clock.
        for (Instant day = moments[0], end = moments.back(); day < end; day += 24h)
            if (WallClock::offset(day) != WallClock::offset(day + 24h))
                for (auto now = day - 36h; now <= day + 60h; now += 12h)
                    moments.push_back(now);
        for (const Instant now : moments)
            EXPECT_EQ(wrong(now), "") << names[i];
    }
}

TEST(TimeFrame, FollowsTheRulesOfTheSystem) {
    const World world("2026-05-15 10:00", "Africa/Cairo");
    EXPECT_EQ(periodBounds(1).start, std::chrono::sys_days(2026y / 4 / 30) + 21h) << "since 2023";
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
