#include "KnownRecords.h"

#include "model/Transaction.h"

#include <xxhash.h>

namespace kovamo {

namespace {

QByteArray keyOf(std::span<const Value> values) {
    return std::get<QUuid>(values[Transaction::Id]).toRfc4122();
}

void bindTimestamp(SQLite::Statement& statement, int index, std::span<const Value> values) {
    if (const auto* timestamp = std::get_if<Instant>(&values[Transaction::Timestamp]))
        statement.bind(index, std::int64_t(timestamp->time_since_epoch().count()));
    else
        statement.bind(index);
}

template<typename T>
void append(std::string& bytes, const T& number) {
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

} // namespace

KnownRecords::KnownRecords() : m_database("", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE) {
    m_database.exec("PRAGMA journal_mode = OFF");
    m_database.exec("PRAGMA synchronous = OFF");
    m_database.exec("PRAGMA cache_size = -6000");
    m_database.exec("CREATE TABLE known (id BLOB PRIMARY KEY, pk INTEGER, timestamp INTEGER, "
                    "digest INTEGER) WITHOUT ROWID");
    m_database.exec("BEGIN");
    // Of two stored records of one id the newer is known: the older one loses to whatever comes in,
    // and stays as it is.
    m_storedInsertion.emplace(
        m_database,
        "INSERT INTO known VALUES (?,?,?,?) ON CONFLICT DO UPDATE SET pk = excluded.pk, "
        "timestamp = excluded.timestamp, digest = excluded.digest "
        "WHERE excluded.timestamp > coalesce(timestamp, excluded.timestamp - 1)");
    m_insertion.emplace(m_database, "INSERT OR IGNORE INTO known VALUES (?,?,?,?)");
    m_selection.emplace(m_database, "SELECT pk, timestamp, digest FROM known WHERE id = ?");
    m_update.emplace(m_database, "UPDATE known SET timestamp = ?, digest = ? WHERE id = ?");
}

std::uint64_t KnownRecords::digest(std::span<const Value> values) {
    m_bytes.clear();
    for (const Value& value : values) {
        append(m_bytes, static_cast<std::uint8_t>(value.index()));
        std::visit(
            [&]<typename T>(const T& v) {
                if constexpr (std::is_same_v<T, QString>) {
                    append(m_bytes, v.size());
                    m_bytes.append(reinterpret_cast<const char*>(v.constData()),
                                   std::size_t(v.size()) * sizeof(QChar));
                } else if constexpr (!std::is_same_v<T, std::monostate>) {
                    append(m_bytes, v);
                }
            },
            value);
    }
    return XXH3_64bits(m_bytes.data(), m_bytes.size());
}

bool KnownRecords::insert(SQLite::Statement& insertion, ObjectID id, std::span<const Value> values,
                          std::uint64_t digest) {
    const QByteArray key = keyOf(values);
    insertion.bindNoCopy(1, key.constData(), int(key.size()));
    insertion.bind(2, id);
    bindTimestamp(insertion, 3, values);
    insertion.bind(4, static_cast<std::int64_t>(digest));
    const bool isNew = insertion.exec() == 1;
    insertion.reset();
    return isNew;
}

void KnownRecords::addStored(ObjectID id, std::span<const Value> values) {
    if (isAbsent(values[Transaction::Id]))
        ++m_nameless[digest(values)].stored;
    else
        (void)insert(*m_storedInsertion, id, values, digest(values));
}

KnownRecords::Verdict KnownRecords::take(ObjectID nextID, std::span<const Value> values,
                                         bool isOnlyNewOrKnown) {
    using enum Standing;
    const std::uint64_t mark = digest(values);
    if (isAbsent(values[Transaction::Id])) {
        Counts& counts = m_nameless[mark];
        return {++counts.taken > counts.stored ? added : same};
    }
    if (insert(*m_insertion, nextID, values, mark))
        return {added};
    if (isOnlyNewOrKnown)
        return {same};
    const QByteArray key = keyOf(values);
    m_selection->bindNoCopy(1, key.constData(), int(key.size()));
    m_selection->executeStep();
    const ObjectID id = m_selection->getColumn(0).getInt64();
    const SQLite::Column column = m_selection->getColumn(1);
    const std::optional<std::int64_t> known =
        column.isNull() ? std::nullopt : std::optional(column.getInt64());
    const bool isSame = static_cast<std::uint64_t>(m_selection->getColumn(2).getInt64()) == mark;
    m_selection->reset();
    if (isSame)
        return {same, id};
    const auto* instant = std::get_if<Instant>(&values[Transaction::Timestamp]);
    const std::optional<std::int64_t> own =
        instant ? std::optional<std::int64_t>(instant->time_since_epoch().count()) : std::nullopt;
    if (own == known)
        return {conflict, id};
    if (own < known)
        return {older, id};
    bindTimestamp(*m_update, 1, values);
    m_update->bind(2, static_cast<std::int64_t>(mark));
    m_update->bindNoCopy(3, key.constData(), int(key.size()));
    m_update->exec();
    m_update->reset();
    return {changed, id};
}

} // namespace kovamo
