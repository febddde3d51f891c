#pragma once

#include "StoreCopy.h"
#include "platform/foundation/Calendar.h"

namespace kovamo {

/// The copy that the first write of a run, and of each day that the run lasts, keeps of what a
/// store held before it. A store without records is not copied, and one that fails is given up for
/// the day: where the disk has no room for it, a save still may.
class DailyCopy {
  public:
    /// `table` is the quoted name of the table of the records.
    DailyCopy(QString storePath, const QString& table);

    /// Copies `pages` more ahead of the write. Returns whether there is nothing left to do ahead.
    /// Requires that `database` outlives the copy, until keep() or abandon().
    bool prepare(SQLite::Database& database, int pages);

    /// Keeps the copy, unless the day has had its own.
    void keep(SQLite::Database& database);

    /// Drops an unfinished copy.
    void abandon() { m_copy.reset(); }

  private:
    bool begin(SQLite::Database& database);

    QString m_storePath;
    std::string m_hasRecords;
    std::optional<StoreCopy> m_copy;
    std::optional<CalendarDay> m_day;
};

} // namespace kovamo
