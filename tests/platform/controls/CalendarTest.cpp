#include "Stage.h"

#include "platform/controls/MonthCalendar.h"
#include "support/World.h"

#include <QSignalSpy>
#include <cmath>
#include <gtest/gtest.h>

namespace kovamo {
namespace {

double moment(const char* local) {
    return static_cast<double>(at(local).time_since_epoch().count());
}

std::string words(double moment) {
    return text(Instant(std::chrono::milliseconds(std::llround(moment))));
}

// The moments that the cells of the month that is shown pick; none where nothing can be picked.
std::vector<std::optional<double>> picks(MonthCalendar& calendar) {
    std::vector<std::optional<double>> found;
    for (int cell = 0; cell < calendar.rowCount(); ++cell) {
        const QSignalSpy picked(&calendar, &MonthCalendar::picked);
        calendar.pick(cell);
        found.push_back(picked.isEmpty() ? std::nullopt : std::optional(picked[0][0].toDouble()));
    }
    return found;
}

TEST(MonthCalendar, FollowsTheLocalesCalendarWeekAndDigits) {
    struct Case {
        const char* locale;
        const char* title;
        const char* firstDay;
        const char* firstText;
        int days;
        int firstCell;
    };
    for (const Case& c : {Case{"en_US.UTF-8", "May 2024", "2024-05-01", "1", 31, 3},
                          Case{"de_DE.UTF-8", "Mai 2024", "2024-05-01", "1", 31, 2},
                          Case{"th_TH.UTF-8", "พฤษภาคม 2567", "2024-05-01", "1", 31, 3},
                          Case{"fa_IR.UTF-8", "۱۴۰۳ اردیبهشت", "2024-04-20", "۱", 31, 0},
                          Case{"ar_EG.UTF-8", "مايو ٢٠٢٤", "2024-05-01", "١", 31, 4},
                          Case{"C", "May 2024", "2024-05-01", "1", 31, 3}}) {
        const World world("2024-05-15 10:20", "Europe/Berlin", c.locale);
        MonthCalendar calendar;
        EXPECT_EQ(calendar.title().toStdString(), c.title);
        const auto cells = picks(calendar);
        const int last = c.firstCell + c.days - 1;
        for (int cell = 0; cell < 42; ++cell)
            EXPECT_EQ(cells[static_cast<size_t>(cell)].has_value(),
                      cell >= c.firstCell && cell <= last)
                << c.locale << " " << cell;
        const auto first = static_cast<size_t>(c.firstCell);
        EXPECT_EQ(words(*cells[first]), c.firstDay + std::string(" 10:20:00.000"));
        EXPECT_EQ(calendar.data(calendar.index(c.firstCell), MonthCalendar::Text),
                  QString::fromUtf8(c.firstText));
        for (size_t cell = first; cell < static_cast<size_t>(last); ++cell)
            EXPECT_EQ(*cells[cell + 1] - *cells[cell], 24 * 3600 * 1000.0) << c.locale;
    }
}

TEST(MonthCalendar, KeepsTheTimeOfDayAcrossMonthsAndClockChanges) {
    const World world("2024-02-29 23:59:59.999");
    MonthCalendar calendar;
    std::string previous = words(calendar.moment());
    for (int month = 0; month < 24; ++month) {
        calendar.nextMonth();
        for (const auto& pick : picks(calendar))
            if (pick) {
                EXPECT_EQ(words(*pick).substr(10), " 23:59:59.999");
                EXPECT_GT(words(*pick), previous);
                previous = words(*pick);
            }
    }
    EXPECT_EQ(calendar.title(), QStringLiteral("February 2026"));
    calendar.reset();
    EXPECT_EQ(calendar.title(), QStringLiteral("February 2024"));
}

TEST(MonthCalendar, OffersNothingBeforeTheDayOfTheMinimum) {
    const World world("2024-05-15 10:00");
    MonthCalendar calendar;
    calendar.setMinimumMoment(moment("2024-05-15 23:00"));
    const auto cells = picks(calendar);
    EXPECT_FALSE(cells[3 + 13].has_value());
    EXPECT_EQ(words(cells[3 + 14].value()), "2024-05-15 10:00:00.000")
        << "its own day, though earlier in it";
    EXPECT_FALSE(calendar.canGoBack());
    for (const auto back :
         {+[](MonthCalendar& c) { c.previousMonth(); }, +[](MonthCalendar& c) { c.moveCursor(-1); },
          +[](MonthCalendar& c) { c.moveCursor(-7); }}) {
        back(calendar);
        EXPECT_EQ(calendar.cursor(), 3 + 14);
    }
    calendar.setMinimumMoment(std::nan(""));
    calendar.moveCursor(-15);
    EXPECT_EQ(calendar.title(), QStringLiteral("April 2024"));
    EXPECT_EQ(calendar.cursor(), 1 + 29);
}

TEST(DateField, UnfoldsAMonthAndPicksADay) {
    const World world("2024-05-15 10:00");
    Stage stage(R"(
        property double day
        DateField { objectName: 'field'; label: 'Start'; moment: day; onPicked: moment => day = moment })");
    stage.set("day", moment("2024-05-15 10:00"));
    stage.click(stage.showing("May 15, 2024"));
    stage.click(stage.showing("30"));
    EXPECT_EQ(words(stage.get("day").toDouble()), "2024-05-30 10:00:00.000");
    stage.press(Qt::Key_Tab);
    stage.press(Qt::Key_Return);
    EXPECT_FALSE(stage.get("unfolded", "field").toBool());
    stage.press(Qt::Key_Return);
    for (int tabs = 0; tabs < 3; ++tabs)
        stage.press(Qt::Key_Tab);
    for (const Qt::Key key : {Qt::Key_PageUp, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return})
        stage.press(key);
    EXPECT_EQ(words(stage.get("day").toDouble()), "2024-04-09 10:00:00.000");
    EXPECT_TRUE(stage.showing("Apr 9, 2024"));
}

} // namespace
} // namespace kovamo
