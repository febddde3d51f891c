#pragma once

#include "platform/foundation/Calendar.h"

#include <QAbstractListModel>
#include <QStringList>
#include <QtQml/qqmlregistration.h>
#include <vector>

namespace kovamo {

/// One month of the user's calendar to pick a day from: six weeks of seven cells, row by row, each
/// week starting on the locale's first day. Cells outside the month are empty.
///
/// `moment` is what is picked (milliseconds since 1970 UTC); the calendar only proposes another one
/// by `picked`, its owner sets it. The cursor is the day that the keyboard moves.
class MonthCalendar : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double moment READ moment WRITE setMoment NOTIFY momentChanged)
    Q_PROPERTY(double minimumMoment READ minimumMoment WRITE setMinimumMoment NOTIFY momentChanged)
    Q_PROPERTY(QString momentText READ momentText NOTIFY momentChanged)
    Q_PROPERTY(QString title READ title NOTIFY monthChanged)
    Q_PROPERTY(QStringList weekdays READ weekdays NOTIFY monthChanged)
    Q_PROPERTY(int weeks READ weeks NOTIFY monthChanged)
    Q_PROPERTY(int cursor READ cursor NOTIFY monthChanged)
    Q_PROPERTY(QString cursorText READ cursorText NOTIFY monthChanged)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY monthChanged)
    Q_PROPERTY(QString year READ year NOTIFY monthChanged)
    Q_PROPERTY(QStringList months READ months NOTIFY monthChanged)
    Q_PROPERTY(int month READ month NOTIFY monthChanged)
    Q_PROPERTY(int firstMonth READ firstMonth NOTIFY monthChanged)

  public:
    enum Role { Text = Qt::UserRole, FullText, Selected, Today, Enabled };

    explicit MonthCalendar(QObject* parent = nullptr);

    [[nodiscard]] double moment() const;
    void setMoment(double moment);

    /// The moment before whose day nothing can be picked; NaN for none.
    [[nodiscard]] double minimumMoment() const { return m_minimum; }
    void setMinimumMoment(double moment);

    /// The day of `moment` in the user's locale: "May 15, 2024".
    [[nodiscard]] QString momentText() const;
    /// The month that is shown, and its year.
    [[nodiscard]] QString title() const;
    /// The seven short names of the days of the week, the locale's first day first.
    [[nodiscard]] QStringList weekdays() const;
    /// How many of the six weeks have a day.
    [[nodiscard]] int weeks() const;
    /// The cell of the day that the keyboard moves.
    [[nodiscard]] int cursor() const;
    /// The day at the cursor in words: "Wednesday, May 15, 2024".
    [[nodiscard]] QString cursorText() const;
    /// Whether the month before this one has a day that can be picked.
    [[nodiscard]] bool canGoBack() const;
    /// The year of the month that is shown.
    [[nodiscard]] QString year() const;
    /// The short names of that year's months: twelve, or thirteen in some calendars.
    [[nodiscard]] QStringList months() const;
    /// Which of them is shown.
    [[nodiscard]] int month() const;
    /// The first of them that has a day that can be picked; their number if none has.
    [[nodiscard]] int firstMonth() const;

    Q_INVOKABLE void previousMonth();
    Q_INVOKABLE void nextMonth();
    /// Shows the month `years` later, or the first one that has a day that can be picked.
    Q_INVOKABLE void moveYears(int years);
    /// Shows one of `months`; nothing where it is before `firstMonth`.
    Q_INVOKABLE void showMonth(int index);
    /// Moves the cursor by days, into another month where it leads there.
    Q_INVOKABLE void moveCursor(int days);
    /// Picks the day of a cell, its time of day that of `moment`; nothing where no day can be.
    Q_INVOKABLE void pick(int index);
    /// Shows the month of `moment` again.
    Q_INVOKABLE void reset();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  Q_SIGNALS:
    void momentChanged();
    void monthChanged();
    void picked(double moment);

  private:
    void show(const CalendarDay& day);
    /// Shows another month, the cursor on the same day of it if it has that one.
    void showMonthOf(const CalendarDay& other);
    void refresh();
    /// The first day of each month of the shown year.
    [[nodiscard]] std::vector<CalendarDay> firstDays() const;
    [[nodiscard]] bool isMonthBeforeMinimum(CalendarDay day) const;
    [[nodiscard]] int leadingCells() const;
    /// The day of the shown month by its number, which may be beyond the month's.
    [[nodiscard]] CalendarDay day(int number) const;
    [[nodiscard]] CalendarDay dayAt(int index) const;
    [[nodiscard]] bool isDay(int index) const;
    [[nodiscard]] bool isBeforeMinimum(const CalendarDay& day) const;

    Instant m_moment;
    double m_minimum;
    CalendarDay m_cursor;
};

} // namespace kovamo
