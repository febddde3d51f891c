#include "UnfinishedStore.h"

#include <QFile>
#include <QtEndian>
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

// Where a database's header has the two versions of its format, and the number that tells what the
// database is for ("PRAGMA application_id").
constexpr off_t formatVersions = 18;
constexpr off_t applicationID = 68;

void completeAlone(const QString& path, std::optional<std::uint32_t> mark) {
    constexpr char rollback[]{1, 1};
    const int file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC);
    bool isComplete = ::pwrite(file, rollback, sizeof rollback, formatVersions) == sizeof rollback;
    if (mark) {
        const std::uint32_t bytes = qToBigEndian(*mark);
        isComplete =
            isComplete && ::pwrite(file, &bytes, sizeof bytes, applicationID) == sizeof bytes;
    }
    isComplete = isComplete && ::fsync(file) == 0;
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

void UnfinishedStore::finish(const QString& path, std::optional<std::uint32_t> mark) {
    completeAlone(m_path, mark);
    if (std::rename(QFile::encodeName(m_path).constData(), QFile::encodeName(path).constData()) !=
        0)
        fail("The copy cannot be given its name");
}

std::optional<std::uint32_t> UnfinishedStore::markOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(applicationID))
        return {};
    const QByteArray bytes = file.read(sizeof(std::uint32_t));
    if (bytes.size() != sizeof(std::uint32_t))
        return {};
    return qFromBigEndian<std::uint32_t>(bytes.constData());
}

} // namespace kovamo
