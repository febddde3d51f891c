#include "StoredValue.h"

#include <QStringDecoder>
#include <sqlite3.h>
#include <utility>

namespace kovamo {

namespace {

/// The text as it was written: a mark of the byte order at its start is a part of it.
QString textOf(const SQLite::Column& column) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder(QByteArrayView(column.getText(), column.getBytes()));
}

} // namespace

void bind(SQLite::Statement& statement, int index, const Value& value) {
    std::visit(
        [&]<typename T>(const T& v) {
            if constexpr (std::is_same_v<T, std::monostate>)
                statement.bind(index);
            else if constexpr (std::is_same_v<T, bool>)
                statement.bind(index, v ? 1 : 0);
            else if constexpr (std::is_same_v<T, std::int32_t>)
                statement.bind(index, v);
            else if constexpr (std::is_same_v<T, QString>)
                statement.bind(index, v.toStdString());
            else if constexpr (std::is_same_v<T, Instant>)
                statement.bind(index, static_cast<std::int64_t>(v.time_since_epoch().count()));
            else
                statement.bind(index, v.toString(QUuid::WithoutBraces).toStdString());
        },
        value);
}

std::optional<Value> valueOf(const SQLite::Column& column, const AttributeDescription& attribute) {
    const int type = column.getType();
    if (type == SQLITE_NULL)
        return attribute.isOptional ? std::optional<Value>(Value()) : std::nullopt;
    const bool isText =
        attribute.type == AttributeType::string || attribute.type == AttributeType::uuid;
    if (type != (isText ? SQLITE_TEXT : SQLITE_INTEGER))
        return std::nullopt;
    switch (attribute.type) {
    case AttributeType::integer32:
        if (!std::in_range<std::int32_t>(column.getInt64()))
            return std::nullopt;
        return column.getInt();
    case AttributeType::boolean:
        return column.getInt64() != 0;
    case AttributeType::string:
        return textOf(column);
    case AttributeType::date:
        return Instant(std::chrono::milliseconds(column.getInt64()));
    case AttributeType::uuid: {
        const auto id = QUuid::fromString(QLatin1String(column.getText(), column.getBytes()));
        return id.isNull() ? Value() : Value(id);
    }
    }
    Q_UNREACHABLE();
}

} // namespace kovamo
