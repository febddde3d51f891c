#include "StoreInspection.h"

#include "Guarded.h"
#include "StoredValue.h"
#include "platform/objectstore/file/WriteAheadLog.h"

#include <QFileInfo>
#include <sqlite3.h>

namespace kovamo {

StoreInspection::StoreInspection(const QString& path, const EntityDescription& entity)
    : m_path(path), m_entity(entity), m_table(entity) {
    if (!QFileInfo(path).isFile())
        fail(QStringLiteral("There is no store"), SQLITE_CANTOPEN, path);
    if (QFileInfo(path).size() == 0)
        fail(QStringLiteral("The store is empty"), SQLITE_NOTADB, path);
    guarded(path, [&] {
        m_database.emplace(path.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX,
                           busyTimeoutMilliseconds);
        checkpointOnClose(*m_database, false);
        if (!m_database->tableExists(m_entity.name.toStdString()))
            fail(QStringLiteral("The file is no store of the app"), SQLITE_NOTADB, path);
    });
}

StoreInspection::~StoreInspection() {
    // Without a log, closing only removes its empty files.
    if (m_database)
        checkpointOnClose(*m_database, !hasLog(m_path));
}

QStringList StoreInspection::fileFaults() {
    return guarded(m_path, [&] {
        SQLite::Statement check(*m_database, "PRAGMA integrity_check(100)");
        QStringList faults;
        while (check.executeStep())
            faults += QString::fromStdString(check.getColumn(0).getString()).split(u'\n');
        return faults == QStringList(QStringLiteral("ok")) ? QStringList() : faults;
    });
}

std::int64_t StoreInspection::count() {
    return guarded(m_path, [&] {
        return m_database->execAndGet("SELECT count(*) FROM " + m_table.name.toStdString())
            .getInt64();
    });
}

std::optional<Instant> StoreInspection::latest(const QString& attribute) {
    return guarded(m_path, [&]() -> std::optional<Instant> {
        const SQLite::Column latest =
            m_database->execAndGet(QStringLiteral("SELECT max(\"%1\") FROM %2")
                                       .arg(attribute, m_table.name)
                                       .toStdString());
        if (!latest.isInteger())
            return std::nullopt;
        return Instant(std::chrono::milliseconds(latest.getInt64()));
    });
}

void StoreInspection::forEach(const std::function<void(ObjectID, Record)>& visit) {
    guarded(m_path, [&] {
        SQLite::Statement rows(*m_database, "SELECT " + m_table.columns.join(u',').toStdString() +
                                                ",pk FROM " + m_table.name.toStdString() +
                                                " ORDER BY pk");
        const auto count = static_cast<int>(m_entity.attributes.size());
        std::vector<std::optional<Value>> values(m_entity.attributes.size());
        while (rows.executeStep()) {
            for (int i = 0; i < count; ++i)
                values[static_cast<std::size_t>(i)] =
                    valueOf(rows.getColumn(i), m_entity.attributes[static_cast<std::size_t>(i)]);
            visit(rows.getColumn(count).getInt64(), values);
        }
    });
}

} // namespace kovamo
