#include "StatementDates.h"

#include <QStringList>

namespace kovamo {

namespace {

/// The part of a date and time that says the day.
QString dayPart(const QString& text) {
    const QString trimmed = text.trimmed();
    const qsizetype end = trimmed.indexOf(u' ');
    const QString first = end < 0 ? trimmed : trimmed.left(end);
    const qsizetype time = first.indexOf(u'T');
    return time < 0 ? first : first.left(time);
}

/// A year of two digits is one of 1970 to 2069.
int fullYear(const QString& text) {
    const int year = text.toInt();
    if (text.size() > 2)
        return year;
    return year + (year < 70 ? 2000 : 1900);
}

std::optional<QDate> date(const QString& year, const QString& month, const QString& day) {
    if ((year.size() != 2 && year.size() != 4) || month.size() > 2 || day.size() > 2)
        return std::nullopt;
    const QDate date(fullYear(year), month.toInt(), day.toInt());
    return date.isValid() ? std::optional(date) : std::nullopt;
}

} // namespace

StatementDates::Readings StatementDates::readings(const QString& text) {
    QString day = dayPart(text);
    const bool isNumber = day.size() == 8 && day.toUInt() > 0;
    if (isNumber)
        day = day.left(4) + u'-' + day.mid(4, 2) + u'-' + day.mid(6);
    const bool hasPoints = day.contains(u'.');
    for (const QChar separator : {u'/', u'.', u'\u5e74', u'\u6708'})
        day.replace(separator, u'-');
    day.remove(u'\u65e5');
    if (day.endsWith(u'-'))
        day.chop(1);
    const QStringList parts = day.split(u'-');
    if (parts.size() != 3)
        return {};
    for (const QString& part : parts)
        for (const QChar character : part)
            if (character < u'0' || character > u'9')
                return {};
    Readings readings{date(parts[2], parts[1], parts[0]), date(parts[2], parts[0], parts[1]),
                      date(parts[0], parts[1], parts[2])};
    // With points, the day comes before the month in every country that puts the year last.
    if (hasPoints && readings[0])
        readings[1].reset();
    if (hasPoints && readings[0] && parts[0].size() == 2)
        readings[2].reset();
    return readings;
}

void StatementDates::learn(const QString& text) {
    const Readings found = readings(text);
    if (!m_format.isEmpty() || (!found[0] && !found[1] && !found[2]))
        return;
    for (std::size_t order = 0; order < orderCount; ++order) {
        m_fits[order] = m_fits[order] && found[order];
        for (std::size_t other = 0; other < order; ++other)
            if (found[order] != found[other])
                m_differ[order][other] = true;
    }
}

bool StatementDates::isClear() const {
    if (!m_format.isEmpty())
        return true;
    for (std::size_t order = 0; order < orderCount; ++order)
        for (std::size_t other = 0; other < order; ++other)
            if (m_fits[order] && m_fits[other] && m_differ[order][other])
                return false;
    return true;
}

std::size_t StatementDates::order() const {
    std::size_t order = 0;
    while (order + 1 < orderCount && !m_fits[order])
        ++order;
    return order;
}

std::optional<QDate> StatementDates::day(const QString& text) const {
    if (m_format.isEmpty())
        return readings(text)[order()];
    const QString trimmed = text.trimmed();
    QDate day = QDate::fromString(trimmed, m_format);
    if (!day.isValid())
        day = QDate::fromString(dayPart(text), m_format);
    if (!day.isValid())
        return std::nullopt;
    const bool hasShortYear = !m_format.contains(QLatin1String("yyyy"));
    return hasShortYear && day.year() < 1970 ? day.addYears(100) : day;
}

} // namespace kovamo
