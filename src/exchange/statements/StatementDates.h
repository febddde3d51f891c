#pragma once

#include <QDate>
#include <QString>
#include <array>
#include <optional>

namespace kovamo {

/// How a statement writes its dates, learned from all of them.
class StatementDates {
  public:
    /// By a format as QDate reads it ("dd.MM.yyyy"), or by their shape where it is empty.
    explicit StatementDates(QString format = {}) : m_format(std::move(format)) {}

    /// Learns from a date as the file has it; a text that is no date is ignored.
    void learn(const QString& text);

    /// Whether the dates that were learned can be read in one way only.
    [[nodiscard]] bool isClear() const;

    /// The day that a text says; nothing where it says none.
    [[nodiscard]] std::optional<QDate> day(const QString& text) const;

  private:
    static constexpr std::size_t orderCount = 3;
    using Readings = std::array<std::optional<QDate>, orderCount>;

    [[nodiscard]] static Readings readings(const QString& text);
    [[nodiscard]] std::size_t order() const;

    QString m_format;
    // Of the orders day-month-year, month-day-year and year-month-day: which fit all dates, and
    // which two have been seen to differ.
    std::array<bool, orderCount> m_fits{true, true, true};
    std::array<std::array<bool, orderCount>, orderCount> m_differ{};
};

} // namespace kovamo
