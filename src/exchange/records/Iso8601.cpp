#include "Iso8601.h"

#include <charconv>
#include <cstdio>
#include <limits>

namespace kovamo {

using namespace std::chrono;

namespace {

constexpr std::int64_t millisecondsOfDay = 86'400'000;
constexpr std::int64_t daysOfEra = 146'097;
constexpr int yearsOfEra = 400;

/// A date of the Gregorian calendar, which std::chrono has up to the year 32767 only.
struct Date {
    std::int64_t year;
    unsigned month;
    unsigned day;
};

std::int64_t floorDivide(std::int64_t a, std::int64_t b) {
    return a / b - (a % b < 0);
}

// The Gregorian calendar repeats every 400 years, of 146,097 days.
Date dateOf(std::int64_t day) {
    const std::int64_t era = floorDivide(day, daysOfEra);
    const year_month_day date(sys_days(days(day - era * daysOfEra)));
    return {static_cast<int>(date.year()) + era * yearsOfEra, static_cast<unsigned>(date.month()),
            static_cast<unsigned>(date.day())};
}

std::optional<std::int64_t> dayOf(const Date& date) {
    const std::int64_t era = floorDivide(date.year, yearsOfEra);
    const year_month_day inEra(year(static_cast<int>(date.year - era * yearsOfEra)),
                               month(date.month), day(date.day));
    if (!inEra.ok())
        return std::nullopt;
    return sys_days(inEra).time_since_epoch().count() + era * daysOfEra;
}

void appendDigits(std::string& text, std::int64_t number, int width) {
    char digits[20];
    char* const end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    for (auto length = end - digits; length < width; ++length)
        text += '0';
    text.append(digits, end);
}

/// Takes a text apart from its start.
class Scanner {
  public:
    explicit Scanner(std::string_view text) : m_text(text) {}

    [[nodiscard]] bool isAtEnd() const { return m_text.empty(); }

    [[nodiscard]] bool take(char character) {
        if (!m_text.starts_with(character))
            return false;
        m_text.remove_prefix(1);
        return true;
    }

    /// A number of `least` to `most` digits; -1 for none.
    [[nodiscard]] std::int64_t number(std::size_t least, std::size_t most) {
        std::size_t length = 0;
        std::int64_t value = 0;
        for (; length < m_text.size() && length < most && m_text[length] >= '0' &&
               m_text[length] <= '9';
             ++length)
            value = value * 10 + (m_text[length] - '0');
        m_text.remove_prefix(length);
        return length < least ? -1 : value;
    }

  private:
    std::string_view m_text;
};

std::optional<std::int64_t> scanDay(Scanner& scanner) {
    const bool isNegative = scanner.take('-');
    const bool isExpanded = isNegative || scanner.take('+');
    const std::int64_t year = scanner.number(4, isExpanded ? 9 : 4);
    if (year < 0 || !scanner.take('-'))
        return std::nullopt;
    const std::int64_t month = scanner.number(2, 2);
    if (month < 0 || !scanner.take('-'))
        return std::nullopt;
    const std::int64_t day = scanner.number(2, 2);
    if (day < 0)
        return std::nullopt;
    return dayOf(
        {isNegative ? -year : year, static_cast<unsigned>(month), static_cast<unsigned>(day)});
}

/// The time of day in milliseconds.
std::optional<std::int64_t> scanTime(Scanner& scanner) {
    const std::int64_t hour = scanner.number(2, 2);
    if (hour < 0 || hour > 23 || !scanner.take(':'))
        return std::nullopt;
    const std::int64_t minute = scanner.number(2, 2);
    if (minute < 0 || minute > 59)
        return std::nullopt;
    std::int64_t second = 0;
    std::int64_t fraction = 0;
    if (scanner.take(':')) {
        second = scanner.number(2, 2);
        if (second < 0 || second > 59)
            return std::nullopt;
        if (scanner.take('.') || scanner.take(',')) {
            fraction = scanner.number(3, 3);
            if (fraction < 0)
                return std::nullopt;
        }
    }
    return ((hour * 60 + minute) * 60 + second) * 1000 + fraction;
}

/// The offset from UTC in milliseconds.
std::optional<std::int64_t> scanOffset(Scanner& scanner) {
    if (scanner.take('Z'))
        return 0;
    const bool isNegative = scanner.take('-');
    if (!isNegative && !scanner.take('+'))
        return std::nullopt;
    const std::int64_t hour = scanner.number(2, 2);
    (void)scanner.take(':');
    const std::int64_t minute = scanner.number(2, 2);
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59)
        return std::nullopt;
    const std::int64_t offset = (hour * 60 + minute) * 60'000;
    return isNegative ? -offset : offset;
}

std::optional<Instant> instantOf(std::int64_t day, std::int64_t time) {
    // The first representable moment is within a day, and so is counted from the day's end.
    const bool isNegative = day < 0;
    std::int64_t sum = 0;
    if (__builtin_mul_overflow(isNegative ? day + 1 : day, millisecondsOfDay, &sum) ||
        __builtin_add_overflow(sum, isNegative ? time - millisecondsOfDay : time, &sum))
        return std::nullopt;
    return Instant(milliseconds(sum));
}

} // namespace

void appendIso8601(std::string& text, Instant instant, ZoneOffset& zone) {
    // Near the ends of 64 bits, adding the offset would overflow.
    const bool isAtAnEnd = instant < Instant::min() + days(1) || instant > Instant::max() - days(1);
    const minutes offset = isAtAnEnd ? minutes(0) : zone.at(instant);
    const std::int64_t local = (instant + offset).time_since_epoch().count();
    const std::int64_t dayCount = floorDivide(local, millisecondsOfDay);
    const std::int64_t rest = local % millisecondsOfDay;
    const std::int64_t time = rest < 0 ? rest + millisecondsOfDay : rest;
    const Date date = dateOf(dayCount);
    if (date.year < 0 || date.year > 9999)
        text += date.year < 0 ? '-' : '+';
    appendDigits(text, std::abs(date.year), 4);
    const auto part = [&](char separator, std::int64_t number, int width = 2) {
        text += separator;
        appendDigits(text, number, width);
    };
    part('-', date.month);
    part('-', date.day);
    part('T', time / 3'600'000);
    part(':', time / 60'000 % 60);
    part(':', time / 1000 % 60);
    part('.', time % 1000, 3);
    const auto distance = std::abs(offset.count());
    part(offset.count() < 0 ? '-' : '+', distance / 60);
    part(':', distance % 60);
}

std::optional<Instant> instantOfIso8601(std::string_view text, ZoneOffset& zone) {
    constexpr std::int64_t noon = millisecondsOfDay / 2;
    Scanner scanner(text);
    const auto day = scanDay(scanner);
    if (!day)
        return std::nullopt;
    std::optional<std::int64_t> time = noon;
    if (!scanner.isAtEnd()) {
        if (!scanner.take('T') && !scanner.take(' '))
            return std::nullopt;
        time = scanTime(scanner);
        if (!time)
            return std::nullopt;
    }
    if (scanner.isAtEnd()) {
        const auto local = instantOf(*day, *time);
        return local ? std::optional(zone.instantOf(*local)) : std::nullopt;
    }
    const auto offset = scanOffset(scanner);
    if (!offset || !scanner.isAtEnd())
        return std::nullopt;
    return instantOf(*day, *time - *offset);
}

} // namespace kovamo
