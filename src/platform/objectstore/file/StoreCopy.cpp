#include "StoreCopy.h"

#include "StoreFile.h"
#include "platform/foundation/Formatters.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

namespace kovamo {

namespace {

constexpr int keptCopies = 3;

QDir folderOf(const QString& storePath) {
    return QFileInfo(storePath).dir();
}

/// The names of the copies, newest first.
QStringList copies(const QString& storePath) {
    const QFileInfo store(storePath);
    const QString pattern =
        store.completeBaseName() + u"-[0-9]*-[0-9][0-9]-[0-9][0-9]." + store.suffix();
    return folderOf(storePath).entryList({pattern}, QDir::Files, QDir::Name | QDir::Reversed);
}

QString copyOfToday(const QString& storePath) {
    const QFileInfo store(storePath);
    return store.completeBaseName() + u'-' + dayText(Clock::now()) + u'.' + store.suffix();
}

/// How many of the copies' names are of days to come: the clock was ahead once, or is behind now.
qsizetype copiesToCome(const QStringList& names, const QString& storePath) {
    const QString today = copyOfToday(storePath);
    return std::ranges::count_if(names, [&](const QString& name) { return name > today; });
}

[[noreturn]] void fail(const char* what) {
    throw SQLite::Exception(what, SQLITE_IOERR);
}

/// Lets the copied pages say that no log belongs to them, as one does to the store's: the two
/// versions of the file format in the database's header. Makes all of the file last.
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

StoreCopy::StoreCopy(SQLite::Database& source, const QString& storePath)
    : m_storePath(storePath), m_unfinished{storePath + u"-copy-" +
                                           QString::number(QCoreApplication::applicationPid())} {
    // What a killed process left. Should another one be at it right now, its copy fails to get its
    // name, and this one is as good.
    QDir folder = folderOf(storePath);
    for (const QString& left : folder.entryList({QFileInfo(storePath).fileName() + u"-copy-*"}))
        folder.remove(left);
    const int file = ::open(QFile::encodeName(m_unfinished.path).constData(),
                            O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file < 0)
        fail("The copy cannot be made");
    ::close(file);
    m_target.emplace(m_unfinished.path.toStdString(), SQLite::OPEN_READWRITE);
    // Nobody opens the copy before it is whole and on the disk.
    m_target->exec("PRAGMA journal_mode = OFF");
    m_target->exec("PRAGMA synchronous = OFF");
    m_backup.emplace(*m_target, source);
}

StoreCopy::Unfinished::~Unfinished() {
    QFile::remove(path);
}

bool StoreCopy::advance(int pages) {
    // The first step copies nothing, and counts.
    const int left = m_backup->getRemainingPageCount();
    m_backup->executeStep(std::clamp(left - 1, 0, pages));
    return m_backup->getRemainingPageCount() <= 1;
}

void StoreCopy::finish() {
    if (m_backup->executeStep(-1) != SQLITE_DONE)
        fail("The store is busy");
    m_backup.reset();
    m_target.reset();
    completeAlone(m_unfinished.path);
    QDir folder = folderOf(m_storePath);
    const QString path = folder.filePath(copyOfToday(m_storePath));
    if (std::rename(QFile::encodeName(m_unfinished.path).constData(),
                    QFile::encodeName(path).constData()) != 0)
        fail("The copy cannot be given its name");
    const QStringList names = copies(m_storePath);
    const qsizetype toCome = copiesToCome(names, m_storePath);
    for (const QString& old : names.first(toCome).mid(keptCopies) + names.mid(toCome + keptCopies))
        folder.remove(old);
    syncFolder(folder.path());
}

std::optional<QString> StoreCopy::newest(const QString& storePath) {
    const QStringList names = copies(storePath);
    if (names.isEmpty())
        return {};
    const qsizetype toCome = copiesToCome(names, storePath);
    return folderOf(storePath).filePath(names[toCome < names.size() ? toCome : 0]);
}

} // namespace kovamo
