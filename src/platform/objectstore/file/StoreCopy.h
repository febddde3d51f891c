#pragma once

#include "UnfinishedStore.h"

#include <QStringList>
#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Database.h>
#include <optional>

namespace kovamo {

/// A copy of a store in the making: a complete store beside it that bears the day, readable and
/// writable by its owner only ("Kovamo-2026-11-23.sqlite" beside "Kovamo.sqlite"). It takes the
/// place of an earlier one of that day, so that the newest three are of three days, however often
/// a day is copied. Until it is finished, it is no more than a file that goes with the value. All
/// failures are thrown as SQLite::Exception and leave no file behind.
class StoreCopy {
  public:
    /// Begins the copy of the store at `storePath`, which `source` has open. Requires: `source`
    /// outlives the copy.
    StoreCopy(SQLite::Database& source, const QString& storePath);
    Q_DISABLE_COPY_MOVE(StoreCopy)

    /// Copies `pages` more, but the last one. Returns whether only that is left.
    bool advance(int pages);

    /// Copies all that is left, and again what another process has changed meanwhile. Then the
    /// copy is on the disk under its name, and copies beyond the newest three are gone.
    void finish();

    /// The names of the copies of the store at `storePath`, newest day first.
    [[nodiscard]] static QStringList names(const QString& storePath);

    /// The newest copy of the store at `storePath`, if there is one.
    [[nodiscard]] static std::optional<QString> newest(const QString& storePath);

  private:
    QString m_storePath;
    UnfinishedStore m_unfinished;
    std::optional<SQLite::Database> m_target;
    std::optional<SQLite::Backup> m_backup;
};

} // namespace kovamo
