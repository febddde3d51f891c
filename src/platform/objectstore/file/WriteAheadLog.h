#pragma once

#include <QString>
#include <SQLiteCpp/Database.h>

namespace kovamo {

/// How long SQLite waits for another process that writes.
inline constexpr int busyTimeoutMilliseconds = 5000;

/// Whether a part of the database at `path` lies in a log beside it.
[[nodiscard]] bool hasLog(const QString& path);

/// Whether closing the database, if no other process has it open, moves its log into its file and
/// deletes the log. SQLite's own answer is yes.
void checkpointOnClose(SQLite::Database& database, bool checkpoints);

/// Moves all of the log into the file. Throws SQLite::Exception, also where another process is
/// still at it.
void emptyLog(SQLite::Database& database);

} // namespace kovamo
