#include "support/Stage.h"

#include "platform/forms/MonthCalendar.h"
#include "support/World.h"

#include <QSignalSpy>
#include <cmath>
#include <set>

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
    // A locale, and its month's title, first day, that day's number and cell.
    const std::tuple<const char*, const char*, const char*, const char*, int> cases[] = {
        {"en_US.UTF-8", "May 2024", "2024-05-01", "1", 3},
        {"de_DE.UTF-8", "Mai 2024", "2024-05-01", "1", 2},
        {"th_TH.UTF-8", "พฤษภาคม 2567", "2024-05-01", "1", 3},
        {"fa_IR.UTF-8", "۱۴۰۳ اردیبهشت", "2024-04-20", "۱", 0},
        {"ar_EG.UTF-8", "مايو ٢٠٢٤", "2024-05-01", "١", 4},
        {"C", "May 2024", "2024-05-01", "1", 3},
        {"sr_RS.UTF-8@latin", "maj 2024.", "2024-05-01", "1", 2},
    };
    for (const auto& [locale, title, firstDay, firstText, firstCell] : cases) {
        const World world("2024-05-15 10:20", "Europe/Berlin", locale);
        MonthCalendar calendar;
        EXPECT_EQ(calendar.title(), title);
        EXPECT_EQ(calendar.data(calendar.index(firstCell), MonthCalendar::Text), firstText);
        const double first = moment(firstDay) + (10 * 60 + 20) * 60'000.0;
        for (int cell = 0; const auto& pick : picks(calendar)) {
            const int day = cell++ - firstCell;
            EXPECT_EQ(pick.has_value(), day >= 0 && day < 31) << locale << " " << day;
            if (pick) {
                EXPECT_EQ(*pick, first + day * 24 * 3'600'000.0) << locale;
            }
        }
    }
}

TEST(MonthCalendar, KeepsTheTimeOfDayAcrossMonthsAndClockChanges) {
    World::setTime("2024-02-29 23:59:59.999");
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

TEST(MonthCalendar, GoesOverMonthsThatOnlySomeYearsHave) {
    for (const char* locale : {"he_IL.UTF-8@calendar=hebrew", "zh_CN.UTF-8@calendar=chinese"}) {
        const World world("2025-08-01", "Asia/Shanghai", locale);
        MonthCalendar calendar;
        EXPECT_TRUE(calendar.index(calendar.cursor()).data(MonthCalendar::Today).toBool());
        EXPECT_EQ(picks(calendar)[static_cast<std::size_t>(calendar.cursor())], calendar.moment());
        for (int month = 0; month < 14; ++month) {
            const QString title = calendar.title();
            calendar.previousMonth();
            EXPECT_NE(calendar.title(), title) << locale;
            calendar.nextMonth();
            EXPECT_EQ(calendar.title(), title) << locale;
            calendar.previousMonth();
        }
        std::set<QString> titles;
        for (int year = 0; year < 3; ++year, calendar.moveYears(1))
            for (int month = 0; month < calendar.months().size(); ++month) {
                calendar.showMonth(month);
                EXPECT_EQ(calendar.month(), month) << locale;
                titles.insert(calendar.title());
            }
        EXPECT_EQ(titles.size(), 37U) << locale << ": one of three years has a leap month";
    }
}

TEST(MonthCalendar, OffersNothingBeforeTheDayOfTheMinimum) {
    MonthCalendar calendar;
    calendar.setMinimumMoment(moment("2024-05-15 23:00"));
    const auto cells = picks(calendar);
    EXPECT_FALSE(cells[3 + 13].has_value());
    EXPECT_EQ(words(cells[3 + 14].value()), "2024-05-15 10:00:00.000")
        << "its own day, though earlier in it";
    EXPECT_FALSE(calendar.canGoBack());
    calendar.previousMonth();
    for (const int days : {-1, -7}) {
        calendar.moveCursor(days);
        EXPECT_EQ(calendar.cursor(), 3 + 14);
    }
    EXPECT_EQ(calendar.firstMonth(), 4);
    calendar.showMonth(3);
    EXPECT_EQ(calendar.month(), 4);
    calendar.moveYears(10);
    EXPECT_EQ(calendar.firstMonth(), 0);
    calendar.showMonth(3);
    EXPECT_EQ(calendar.title(), QStringLiteral("April 2034"));
    calendar.moveYears(-10);
    EXPECT_EQ(calendar.title(), QStringLiteral("May 2024")) << "April is before the minimum";
    calendar.setMinimumMoment(moment("2024-05-20"));
    calendar.moveCursor(1);
    EXPECT_EQ(calendar.cursor(), 3 + 15) << "from before the minimum the way leads on";
    calendar.reset();
    calendar.setMinimumMoment(std::nan(""));
    calendar.moveCursor(-15);
    EXPECT_EQ(calendar.title(), QStringLiteral("April 2024"));
    EXPECT_EQ(calendar.cursor(), 1 + 29);
}

TEST(DateField, UnfoldsAMonthAndPicksADay) {
    Stage stage(R"(
        property double day
        DateField { objectName: 'field'; label: 'Start'; moment: day; onPicked: moment => day = moment })");
    stage.set("day", moment("2024-05-15 10:00"));
    stage.click(stage.showing("May 15, 2024"));
    stage.click(stage.showing("30"));
    EXPECT_EQ(words(stage.get("day").toDouble()), "2024-05-30 10:00:00.000");
    stage.press(Qt::Key_Return);
    EXPECT_FALSE(stage.get("unfolded", "field").toBool());
    stage.press(Qt::Key_Return);
    stage.press(Qt::Key_PageDown);
    stage.click(stage.showing("June 2024"));
    stage.press(Qt::Key_PageUp);
    stage.press(Qt::Key_PageDown);
    stage.click(stage.showing("May"));
    EXPECT_TRUE(stage.showing("May 2024"));
    for (const Qt::Key key : {Qt::Key_PageUp, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return})
        stage.press(key);
    EXPECT_EQ(words(stage.get("day").toDouble()), "2024-05-08 10:00:00.000") << "April has 30";
    EXPECT_TRUE(stage.showing("May 8, 2024"));
    stage.press(Qt::Key_Escape);
    EXPECT_FALSE(stage.get("unfolded", "field").toBool());
}

TEST(DateField, UnfoldsInSight) {
    for (const double height : {480, 300}) {
        Stage stage(R"(
            GroupedForm {
                objectName: 'form'; width: 390
                FormSection { ToggleRow { } ToggleRow { } ToggleRow { } DateField { objectName: 'field'; label: 'Start' } }
            })");
        stage.set("height", height, "form");
        stage.click(stage.showing("Start"));
        const QQuickItem* field = stage.item("field");
        EXPECT_TRUE(Stage::soon([&] {
            const QRectF area = field->mapRectToScene(field->boundingRect());
            return area.height() > 300 && area.top() >= 0 &&
                   (area.bottom() <= height || area.top() == 0);
        }));
    }
}

} // namespace
} // namespace kovamo
