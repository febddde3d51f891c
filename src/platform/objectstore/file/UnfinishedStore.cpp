#include "UnfinishedStore.h"

#include <QFile>
#include <SQLiteCpp/Exception.h>
#include <cstdio>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

namespace kovamo {

namespace {

[[noreturn]] void fail(const char* what) {
    throw SQLite::Exception(what, SQLITE_IOERR);
}

/// Writes the two versions of the file format in the database's header: those without a log.
void completeAlone(const QString& path) {
    constexpr char rollback[]{1, 1};
    constexpr off_t formatVersions = 18;
    const int file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC);
    const ssize_t written = ::pwrite(file, rollback, sizeof rollback, formatVersions);
    const bool isComplete = written == sizeof rollback && ::fsync(file) == 0;
    ::close(file);
    if (!isComplete)
        fail("The copy cannot be completed");
}

} // namespace

UnfinishedStore::UnfinishedStore(QString path) : m_path(std::move(path)) {
    const int file = ::open(QFile::encodeName(m_path).constData(),
                            O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file < 0)
        fail("The copy cannot be made");
    ::close(file);
}

UnfinishedStore::~UnfinishedStore() {
    QFile::remove(m_path);
}

void UnfinishedStore::finish(const QString& path) {
    completeAlone(m_path);
    if (std::rename(QFile::encodeName(m_path).constData(), QFile::encodeName(path).constData()) !=
        0)
        fail("The copy cannot be given its name");
}

} // namespace kovamo
