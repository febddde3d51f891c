#pragma once

#include "UnfinishedStore.h"

#include <QStringList>
#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Database.h>
#include <optional>

namespace kovamo {

/// A copy of a store in the making: a complete store beside it that bears the day, readable and
/// writable by its owner only ("Notes-2026-11-23.sqlite" beside "Notes.sqlite"). It takes the
/// place of an earlier one of that day, so that the newest three are of three days, however often
/// a day is copied. It bears a mark by which the store tells it from a file of the user's and from
/// the copies of another store that was here before. Until it is finished, its file is deleted
/// with the value. All failures are thrown as SQLite::Exception and leave no file
/// behind.
class StoreCopy {
  public:
    /// Begins the copy of the store at `storePath`, which `source` has open. Requires: `source`
    /// outlives the copy.
    StoreCopy(SQLite::Database& source, const QString& storePath);
    Q_DISABLE_COPY_MOVE(StoreCopy)

    /// Copies `pages` more, but the last one. Returns whether only that is left.
    bool advance(int pages);

    /// Copies all that is left, and again what another process has changed meanwhile. Then the
    /// copy is on the disk under its name, and the store's own copies beyond the newest three are
    /// gone. Fails where a file that is not the store's own has the name.
    void finish();

    /// The names of the copies of the store at `storePath`, newest day first.
    [[nodiscard]] static QStringList names(const QString& storePath);

    /// The newest copy of the store at `storePath`, if there is one.
    [[nodiscard]] static std::optional<QString> newest(const QString& storePath);

    /// The newest copy of another store that was at `storePath` before the one that `store` has
    /// open, if there is one.
    [[nodiscard]] static std::optional<QString> newestOfFormer(SQLite::Database& store,
                                                               const QString& storePath);

  private:
    QString m_storePath;
    std::uint32_t m_store;
    UnfinishedStore m_unfinished;
    std::optional<SQLite::Database> m_target;
    std::optional<SQLite::Backup> m_backup;
};

} // namespace kovamo
