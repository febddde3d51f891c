#include "Soundness.h"

#include "WriteAheadLog.h"

#include <QDateTime>
#include <QFileInfo>
#include <algorithm>
#include <future>
#include <memory>
#include <sqlite3.h>
#include <xxhash.h>

namespace kovamo {

namespace {

constexpr qsizetype chunk = 1 << 16;

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

/// What was read of a file before it was opened, and when the file had been written to last.
struct ReadFile {
    QString path;
    QDateTime written;
    QByteArray digest;
};

std::future<ReadFile>& fileAhead() {
    static std::future<ReadFile> file;
    return file;
}

QDateTime lastWritten(const QString& path) {
    return QFileInfo(path).lastModified();
}

ReadFile readFile(const QString& path) {
    ReadFile file{path, lastWritten(path), {}};
    try {
        SQLite::Database database(path.toStdString(), SQLite::OPEN_READONLY);
        file.digest = digest(database);
    } catch (const SQLite::Exception&) {
        // The opening will meet the same error, and says it.
    }
    return file;
}

QByteArray currentDigest(SQLite::Database& database, const QString& path) {
    if (fileAhead().valid()) {
        const ReadFile file = fileAhead().get();
        if (file.path == path && file.written == lastWritten(path))
            return file.digest;
    }
    return digest(database);
}

} // namespace

QString faultOf(SQLite::Database& database) {
    const std::string verdict = database.execAndGet("PRAGMA integrity_check(1)").getString();
    return verdict == "ok" ? QString() : QString::fromStdString(verdict).replace(u'\n', u' ');
}

void readAhead(const QString& path) {
    if (!QFile::exists(sealPath(path)))
        return;
    // It asks for environment variables, which the rest of the start may set meanwhile.
    sqlite3_initialize();
    fileAhead() = std::async([path] { return readFile(path); });
}

bool isSealed(SQLite::Database& database, const QString& path) {
    QFile file(sealPath(path));
    return file.open(QIODevice::ReadOnly) && file.size() > 0 &&
           file.readAll() == currentDigest(database, path);
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
