#include "DailyCopy.h"

#include <SQLiteCpp/Exception.h>
#include <utility>

namespace kovamo {

DailyCopy::DailyCopy(QString storePath, const QString& table)
    : m_storePath(std::move(storePath)),
      m_hasRecords("SELECT EXISTS (SELECT 1 FROM " + table.toStdString() + ")") {}

bool DailyCopy::begin(SQLite::Database& database) {
    if (!m_copy && database.execAndGet(m_hasRecords).getInt() != 0)
        m_copy.emplace(database, m_storePath);
    return m_copy.has_value();
}

bool DailyCopy::prepare(SQLite::Database& database, int pages) {
    try {
        return m_day == Calendar().today() || !begin(database) || m_copy->advance(pages);
    } catch (const SQLite::Exception&) {
        // keep() tries again before the write.
        m_copy.reset();
        return true;
    }
}

void DailyCopy::keep(SQLite::Database& database) {
    const CalendarDay day = Calendar().today();
    if (m_day == day)
        return;
    try {
        if (begin(database))
            m_copy->finish();
    } catch (const SQLite::Exception&) {
        // If the disk has no room for a copy, saving is still worth trying.
    }
    m_copy.reset();
    m_day = day;
}

} // namespace kovamo
