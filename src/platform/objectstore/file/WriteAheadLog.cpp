#include "WriteAheadLog.h"

#include <QFileInfo>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>

namespace kovamo {

bool hasLog(const QString& path) {
    return QFileInfo(path + u"-wal").size() > 0;
}

void checkpointOnClose(SQLite::Database& database, bool checkpoints) {
    sqlite3_db_config(database.getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, checkpoints ? 0 : 1,
                      nullptr);
}

void emptyLog(SQLite::Database& database) {
    SQLite::Statement checkpoint(database, "PRAGMA wal_checkpoint(TRUNCATE)");
    if (checkpoint.executeStep() && checkpoint.getColumn(0).getInt() != 0)
        throw SQLite::Exception("The store is busy", SQLITE_BUSY);
}

} // namespace kovamo
