#include "JsonReader.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <limits>

namespace kovamo {

namespace {

QLatin1String latin1(std::string_view text) {
    return {text.data(), qsizetype(text.size())};
}

void fill(Cell& cell, const QJsonValue& value, std::string_view name) {
    cell.clear();
    if (value.isString()) {
        const QString text = value.toString();
        if (!text.isValidUtf16())
            throw Fault{QStringLiteral("The %1 has half a character").arg(latin1(name))};
        cell.set(text.toStdString());
    } else if (value.isDouble()) {
        constexpr qint64 none = std::numeric_limits<qint64>::min();
        const qint64 whole = value.toInteger(none);
        cell.set(whole == none ? QByteArray::number(value.toDouble()).toStdString()
                               : std::to_string(whole));
    } else if (!value.isNull() && !value.isUndefined()) {
        throw Fault{QStringLiteral("The %1 is neither a text nor a number").arg(latin1(name))};
    }
}

} // namespace

void JsonReader::read(std::string_view line) {
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(
        QByteArray::fromRawData(line.data(), qsizetype(line.size())), &error);
    if (error.error != QJsonParseError::NoError)
        throw Fault{QStringLiteral("This is no JSON: %1, at byte %2")
                        .arg(error.errorString(), QString::number(error.offset + 1))};
    if (!document.isObject())
        throw Fault{QStringLiteral("This is no JSON object")};
    const QJsonObject object = document.object();
    for (std::size_t column = 0; column < columnNames.size(); ++column)
        fill(m_row[Column(column)], object.value(latin1(columnNames[column])), columnNames[column]);
    if (!object.contains(QLatin1String("until")) && !object.contains(QLatin1String("endDate")))
        endWhereItBegins(m_row);
}

bool JsonReader::next(std::vector<Value>& values) {
    for (;;) {
        const std::string_view line = m_lines.next();
        if (line.empty())
            return false;
        if (line.find_first_not_of(" \t\r\n") == line.npos)
            continue;
        read(line);
        readRow(m_row, values, m_zone);
        return true;
    }
}

} // namespace kovamo
