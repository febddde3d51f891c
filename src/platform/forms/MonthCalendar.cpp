#include "MonthCalendar.h"

#include "platform/foundation/Formatters.h"

#include <algorithm>
#include <cmath>

namespace kovamo {

namespace {

constexpr int daysOfWeek = 7, cells = 6 * daysOfWeek;

} // namespace

MonthCalendar::MonthCalendar(QObject* parent)
    : QAbstractListModel(parent), m_moment(Clock::now()), m_minimum(std::nan("")),
      m_cursor(Calendar().day(m_moment)) {}

double MonthCalendar::moment() const {
    return momentOf(m_moment);
}

void MonthCalendar::setMoment(double moment) {
    if (std::isnan(moment) || instantOf(moment) == m_moment)
        return;
    m_moment = instantOf(moment);
    Q_EMIT momentChanged();
    reset();
}

void MonthCalendar::setMinimumMoment(double moment) {
    if (moment == m_minimum || (std::isnan(moment) && std::isnan(m_minimum)))
        return;
    m_minimum = moment;
    Q_EMIT momentChanged();
    refresh();
}

QString MonthCalendar::momentText() const {
    return localizedDateText(m_moment, QStringLiteral("yMMMd"));
}

QString MonthCalendar::title() const {
    return localizedDateText(Calendar().instant(m_cursor, 12), QStringLiteral("yMMMM"));
}

QStringList MonthCalendar::weekdays() const {
    const Calendar calendar;
    QStringList names;
    for (int cell = 0; cell < daysOfWeek; ++cell)
        names += localizedDateText(calendar.instant(dayAt(cell), 12), QStringLiteral("ccc"));
    return names;
}

int MonthCalendar::weeks() const {
    return (leadingCells() + Calendar().daysInMonth(m_cursor) + daysOfWeek - 1) / daysOfWeek;
}

int MonthCalendar::cursor() const {
    return leadingCells() + m_cursor.day - 1;
}

QString MonthCalendar::cursorText() const {
    return data(index(cursor()), FullText).toString();
}

bool MonthCalendar::canGoBack() const {
    return !isBeforeMinimum(day(0));
}

QString MonthCalendar::year() const {
    return localizedDateText(Calendar().instant(m_cursor, 12), QStringLiteral("y"));
}

QStringList MonthCalendar::months() const {
    const Calendar calendar;
    QStringList names;
    for (const CalendarDay& first : firstDays())
        names += localizedDateText(calendar.instant(first, 12), QStringLiteral("LLL"));
    return names;
}

int MonthCalendar::month() const {
    const std::vector<CalendarDay> all = firstDays();
    return static_cast<int>(std::ranges::find(all, day(1)) - all.begin());
}

int MonthCalendar::firstMonth() const {
    const std::vector<CalendarDay> all = firstDays();
    const auto isBefore = [this](const CalendarDay& first) { return isMonthBeforeMinimum(first); };
    return static_cast<int>(std::ranges::find_if_not(all, isBefore) - all.begin());
}

void MonthCalendar::moveYears(int years) {
    const CalendarDay other{m_cursor.year + years, m_cursor.month};
    if (isMonthBeforeMinimum(other))
        show(Calendar().day(instantOf(m_minimum)));
    else
        showMonthOf(other);
}

void MonthCalendar::showMonth(int index) {
    const std::vector<CalendarDay> all = firstDays();
    if (index >= firstMonth() && index < std::ssize(all))
        showMonthOf(all[static_cast<std::size_t>(index)]);
}

void MonthCalendar::previousMonth() {
    if (!canGoBack())
        return;
    showMonthOf(day(0));
}

void MonthCalendar::nextMonth() {
    showMonthOf(day(Calendar().daysInMonth(m_cursor) + 1));
}

void MonthCalendar::moveCursor(int days) {
    const CalendarDay target = day(m_cursor.day + days);
    // A day before the minimum can still be left by moving forward.
    if (days > 0 || !isBeforeMinimum(target))
        show(target);
}

void MonthCalendar::pick(int index) {
    if (isDay(index) && !isBeforeMinimum(dayAt(index)))
        Q_EMIT picked(momentOf(Calendar().moved(m_moment, dayAt(index))));
}

void MonthCalendar::reset() {
    show(Calendar().day(m_moment));
}

int MonthCalendar::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : cells;
}

QVariant MonthCalendar::data(const QModelIndex& index, int role) const {
    if (!isDay(index.row()))
        return role == Text || role == FullText ? QVariant(QString()) : QVariant(false);
    const CalendarDay day = dayAt(index.row());
    const Calendar calendar;
    switch (role) {
    case Text:
        return DateFormatter{QStringLiteral("d")}.string(calendar.instant(day, 12));
    case FullText:
        return localizedDateText(calendar.instant(day, 12), QStringLiteral("yMMMMEEEEd"));
    case Selected:
        return day == calendar.day(m_moment);
    case Today:
        return day == calendar.today();
    case Enabled:
        return !isBeforeMinimum(day);
    default:
        return {};
    }
}

QHash<int, QByteArray> MonthCalendar::roleNames() const {
    return {{Text, "text"},
            {FullText, "fullText"},
            {Selected, "selected"},
            {Today, "today"},
            {Enabled, "available"}};
}

void MonthCalendar::show(const CalendarDay& day) {
    const Calendar calendar;
    m_cursor = calendar.day(calendar.instant(day, 12));
    refresh();
}

void MonthCalendar::showMonthOf(const CalendarDay& other) {
    const int number = m_cursor.day;
    show(other);
    show(day(std::min(number, Calendar().daysInMonth(m_cursor))));
}

void MonthCalendar::refresh() {
    Q_EMIT monthChanged();
    Q_EMIT dataChanged(index(0), index(cells - 1));
}

std::vector<CalendarDay> MonthCalendar::firstDays() const {
    const Calendar calendar;
    std::vector<CalendarDay> days;
    for (CalendarDay day{m_cursor.year}; day.year == m_cursor.year;) {
        days.push_back(day);
        day.day += calendar.daysInMonth(day);
        day = calendar.day(calendar.instant(day, 12));
    }
    return days;
}

bool MonthCalendar::isMonthBeforeMinimum(CalendarDay day) const {
    day.day = Calendar().daysInMonth(day);
    return isBeforeMinimum(day);
}

int MonthCalendar::leadingCells() const {
    const Calendar calendar;
    const int first = calendar.weekday(day(1));
    return (first - calendar.firstWeekday() + daysOfWeek) % daysOfWeek;
}

CalendarDay MonthCalendar::day(int number) const {
    CalendarDay day = m_cursor;
    day.day = number;
    return day;
}

CalendarDay MonthCalendar::dayAt(int index) const {
    return day(index - leadingCells() + 1);
}

bool MonthCalendar::isDay(int index) const {
    const int day = dayAt(index).day;
    return day >= 1 && day <= Calendar().daysInMonth(m_cursor);
}

bool MonthCalendar::isBeforeMinimum(const CalendarDay& day) const {
    if (std::isnan(m_minimum))
        return false;
    const Calendar calendar;
    const Instant first = calendar.instant(calendar.day(instantOf(m_minimum)));
    return calendar.instant(day, 12) < first;
}

} // namespace kovamo
