#pragma once

#include "platform/objectstore/file/StoreError.h"

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

namespace kovamo {

/// Runs `work` on the store at `path` and throws what SQLite throws as a StoreError.
template<typename Work>
auto guarded(const QString& path, Work work) {
    try {
        return work();
    } catch (const SQLite::Exception& error) {
        const int code = error.getErrorCode();
        fail(QString::fromUtf8(error.what()), error.getExtendedErrorCode(), path,
             code == SQLITE_CORRUPT || code == SQLITE_NOTADB);
    }
}

} // namespace kovamo
