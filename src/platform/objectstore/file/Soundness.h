#pragma once

#include <QString>
#include <SQLiteCpp/Database.h>

namespace kovamo {

/// The first fault of a database, every index compared with its table; empty when it is sound.
/// Reads all of it.
[[nodiscard]] QString faultOf(SQLite::Database& database);

/// Begins to read the file at `path` for the next isSealed(), on a thread of its own: while the app
/// starts, that costs no time. A file that changes afterwards is read again.
void readAhead(const QString& path);

/// Whether the file of a database, which is at `path`, has byte for byte the content that was last
/// sealed. A fraction of the cost of faultOf(), and it sees what that cannot: a changed digit in an
/// amount.
[[nodiscard]] bool isSealed(SQLite::Database& database, const QString& path);

/// Whether the file at `path` was sealed once and is empty now, or has gone and left its log. Where
/// there is neither, the seal is forgotten: whoever removes a store wants a new one.
[[nodiscard]] bool isEmptied(const QString& path);

/// Remembers the content of a database's file, which is at `path`, as sound, in a file beside it,
/// unless a part of the database still lies in its log. Requires that faultOf() found nothing. A
/// seal that cannot be written is no failure: the next check takes longer.
void seal(SQLite::Database& database, const QString& path);

} // namespace kovamo
