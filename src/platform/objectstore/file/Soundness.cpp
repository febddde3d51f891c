#include "Soundness.h"

#include "WriteAheadLog.h"

#include <QFileInfo>
#include <algorithm>
#include <memory>
#include <sqlite3.h>
#include <xxhash.h>

namespace kovamo {

namespace {

constexpr qsizetype chunk = 1 << 18;

QString sealPath(const QString& path) {
    return path + u"-seal";
}

/// A digest of the content of a database's file in hexadecimal; empty when it cannot be read. It
/// is read through SQLite: a process that closes the file beside it gives up all its locks on it,
/// and another one may then take away the log that it writes to.
QByteArray digest(SQLite::Database& database) {
    sqlite3_file* file = nullptr;
    sqlite3_int64 size = 0;
    if (sqlite3_file_control(database.getHandle(), "main", SQLITE_FCNTL_FILE_POINTER, &file) !=
            SQLITE_OK ||
        file->pMethods->xFileSize(file, &size) != SQLITE_OK)
        return {};
    const std::unique_ptr<XXH3_state_t, decltype(&XXH3_freeState)> state(XXH3_createState(),
                                                                         &XXH3_freeState);
    XXH3_64bits_reset(state.get());
    QByteArray bytes(chunk, Qt::Uninitialized);
    for (sqlite3_int64 place = 0; place < size; place += chunk) {
        const int length = static_cast<int>(std::min<sqlite3_int64>(chunk, size - place));
        if (file->pMethods->xRead(file, bytes.data(), length, place) != SQLITE_OK)
            return {};
        XXH3_64bits_update(state.get(), bytes.constData(), static_cast<std::size_t>(length));
    }
    return QByteArray::number(static_cast<qulonglong>(XXH3_64bits_digest(state.get())), 16);
}

} // namespace

QString faultOf(SQLite::Database& database) {
    const std::string verdict = database.execAndGet("PRAGMA integrity_check(1)").getString();
    return verdict == "ok" ? QString() : QString::fromStdString(verdict).replace(u'\n', u' ');
}

bool isSealed(SQLite::Database& database, const QString& path) {
    QFile file(sealPath(path));
    return file.open(QIODevice::ReadOnly) && file.size() > 0 && file.readAll() == digest(database);
}

bool isEmptied(const QString& path) {
    const QFileInfo file(path);
    // SQLite deletes the log of a store that is not there: the last saves may be in it alone.
    if (!file.exists() && hasLog(path))
        return true;
    if (!file.exists())
        QFile::remove(sealPath(path));
    // SQLite deletes a log that lies beside an empty file: look before it opens the file.
    return file.isFile() && file.size() == 0 && (QFile::exists(sealPath(path)) || hasLog(path));
}

void seal(SQLite::Database& database, const QString& path) {
    QFile file(sealPath(path));
    if (hasLog(path) || !file.open(QIODevice::WriteOnly))
        return;
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    file.write(digest(database));
}

} // namespace kovamo
