#include "Row.h"

#include "Iso8601.h"
#include "model/Transaction.h"

#include <QUtf8StringView>
#include <charconv>
#include <iterator>

namespace kovamo {

namespace {

constexpr std::string_view earning = "earning";
constexpr std::string_view spending = "spending";
constexpr std::string_view monthly = "monthly";
constexpr std::string_view yearly = "yearly";
constexpr std::string_view other = "other";

void write(Cell& cell, const Value& value, ZoneOffset& zone) {
    cell.clear();
    cell.isPresent = !isAbsent(value);
    if (const auto* text = std::get_if<QString>(&value))
        cell.text = text->toStdString();
    else if (const auto* instant = std::get_if<Instant>(&value))
        appendIso8601(cell.text, *instant, zone);
    else if (const auto* id = std::get_if<QUuid>(&value))
        cell.text = id->toByteArray(QUuid::WithoutBraces).toStdString();
    else if (const auto* number = std::get_if<std::int32_t>(&value))
        cell.text = std::to_string(*number);
}

/// "The amount “x” is no whole number": the cell's text, cut where it is long.
[[noreturn]] void refuse(Column column, const Cell& cell, const char* demand) {
    constexpr qsizetype most = 60;
    QString text = QString::fromStdString(cell.text);
    if (text.size() > most)
        text = text.left(most) + u'…';
    const auto name = columnNames[std::size_t(column)];
    throw Fault{
        QStringLiteral("The %1 \"%2\" is no %3")
            .arg(QLatin1String(name.data(), std::ssize(name)), text, QLatin1String(demand))};
}

Value text(Column column, const Cell& cell) {
    if (!cell.isPresent)
        return {};
    if (!QUtf8StringView(cell.text.data(), qsizetype(cell.text.size())).isValidUtf8())
        refuse(column, cell, "UTF-8");
    return QString::fromUtf8(cell.text.data(), qsizetype(cell.text.size()));
}

Value date(Column column, const Cell& cell, ZoneOffset& zone) {
    if (!cell.isPresent)
        return {};
    const auto instant = instantOfIso8601(cell.text, zone);
    if (!instant)
        refuse(column, cell, "date after ISO 8601");
    return *instant;
}

Value uuid(const Cell& cell) {
    if (!cell.isPresent)
        return {};
    const auto id = QUuid::fromString(QLatin1String(cell.text.data(), qsizetype(cell.text.size())));
    if (id.isNull())
        refuse(Column::id, cell, "UUID");
    return id;
}

Value integer(const Cell& cell) {
    std::int32_t number = 0;
    const char* const end = cell.text.data() + cell.text.size();
    const auto [stop, error] = std::from_chars(cell.text.data(), end, number);
    if (error != std::errc() || stop != end)
        refuse(Column::amount, cell, "whole number of 32 bits");
    return number;
}

} // namespace

void fillRow(Row& row, std::span<const Value> values, ZoneOffset& zone) {
    using enum Column;
    const auto put = [&](Column column, Transaction::Attribute attribute) {
        write(row[column], values[attribute], zone);
    };
    put(id, Transaction::Id);
    put(date, Transaction::StartDate);
    put(title, Transaction::Title);
    put(emoji, Transaction::Emoji);
    put(amount, Transaction::Amount);
    row[kind].set(std::get<bool>(values[Transaction::IsPositive]) ? earning : spending);
    put(timestamp, Transaction::Timestamp);
    put(recurringType, Transaction::RecurringType);
    put(until, Transaction::EndDate);
    row[recurs].clear();
    row[endDate].clear();
    Cell& type = row[recurringType];
    if (!std::get<bool>(values[Transaction::IsRecurring])) {
        std::swap(row[until], row[endDate]);
    } else if (type.isPresent && (type.text == monthly || type.text == yearly)) {
        std::swap(row[recurs], type);
    } else {
        row[recurs].set(other);
    }
}

void endWhereItBegins(Row& row) {
    using enum Column;
    if (!row[recurs].isPresent)
        row[endDate] = row[date];
}

void readRow(const Row& row, std::vector<Value>& values, ZoneOffset& zone) {
    using enum Column;
    values.assign(Transaction::entity().attributes.size(), {});
    values[Transaction::Id] = uuid(row[id]);
    values[Transaction::StartDate] = kovamo::date(date, row[date], zone);
    values[Transaction::Title] = text(title, row[title]);
    values[Transaction::Emoji] = text(emoji, row[emoji]);
    values[Transaction::Amount] = integer(row[amount]);
    values[Transaction::Timestamp] = kovamo::date(timestamp, row[timestamp], zone);
    const Cell& direction = row[kind];
    if (direction.text != earning && direction.text != spending)
        refuse(kind, direction, "\"earning\" or \"spending\"");
    values[Transaction::IsPositive] = direction.text == earning;

    const Cell& type = row[recurs];
    const bool isPlain = type.text == monthly || type.text == yearly;
    if (type.isPresent && !isPlain && type.text != other)
        refuse(recurs, type, "\"monthly\", \"yearly\" or \"other\"");
    values[Transaction::IsRecurring] = type.isPresent;
    const Column typeColumn = isPlain ? recurs : recurringType;
    values[Transaction::RecurringType] = text(typeColumn, row[typeColumn]);
    const Column endColumn = type.isPresent || row[until].isPresent ? until : endDate;
    values[Transaction::EndDate] = kovamo::date(endColumn, row[endColumn], zone);
}

} // namespace kovamo
