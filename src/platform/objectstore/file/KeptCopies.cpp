#include "KeptCopies.h"

#include "StoreCopy.h"
#include "StoreError.h"
#include "UnfinishedStore.h"
#include "WriteAheadLog.h"
#include "platform/foundation/Formatters.h"
#include "platform/foundation/SyncFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Transaction.h>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>
#include <sqlite3.h>
#include <unistd.h>

namespace kovamo {

namespace {

const QString setAside = QStringLiteral("set-aside-");

/// What a file's name has between the store's base name and its suffix.
QString nameWithin(const QString& path, const QFileInfo& store) {
    return QFileInfo(path).completeBaseName().mid(store.completeBaseName().size() + 1);
}

/// An unused path beside the store, for a store that is set aside today.
QString freePath(const QFileInfo& store) {
    const QString base =
        store.dir().filePath(store.completeBaseName() + u'-' + setAside + dayText(Clock::now()));
    QString path = base + u'.' + store.suffix();
    for (int number = 2; QFileInfo::exists(path) || QFileInfo::exists(path + u"-wal"); ++number)
        path = base + u'-' + QString::number(number) + u'.' + store.suffix();
    return path;
}

[[noreturn]] void failAt(const QString& path) {
    fail(QString::fromLocal8Bit(std::strerror(errno)), errno, path);
}

void move(const QString& from, const QString& to) {
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        failAt(from);
}

/// A store that no other process can write to while the value lives, and whose log is empty.
class LockedStore {
  public:
    explicit LockedStore(const QString& path)
        : m_database(path.toStdString(), SQLite::OPEN_READWRITE, busyTimeoutMilliseconds) {
        // By the time this is closed, the name and the log beside it belong to another store.
        checkpointOnClose(m_database, false);
        do {
            m_writing.reset();
            emptyLog(m_database);
            m_writing.emplace(m_database, SQLite::TransactionBehavior::IMMEDIATE);
        } while (hasLog(path));
    }

  private:
    SQLite::Database m_database;
    std::optional<SQLite::Transaction> m_writing;
};

/// The store at `path`, locked; nothing where there is none, or one so damaged that SQLite does not
/// open it.
std::unique_ptr<LockedStore> locked(const QString& path) {
    if (!QFileInfo::exists(path))
        return nullptr;
    try {
        return std::make_unique<LockedStore>(path);
    } catch (const SQLite::Exception& error) {
        if (error.getErrorCode() == SQLITE_NOTADB || error.getErrorCode() == SQLITE_CORRUPT)
            return nullptr;
        throw;
    }
}

void copyContent(const QString& from, const QString& to) {
    SQLite::Database source(from.toStdString(), SQLite::OPEN_READONLY, busyTimeoutMilliseconds);
    SQLite::Database target(to.toStdString(), SQLite::OPEN_READWRITE);
    // The name is given last: nobody opens the file before it is complete and on the disk.
    target.exec("PRAGMA journal_mode = OFF");
    target.exec("PRAGMA synchronous = OFF");
    if (SQLite::Backup(target, source).executeStep(-1) != SQLITE_DONE)
        throw SQLite::Exception("The copy is busy", SQLITE_BUSY);
}

/// Gives the store's file a second name, or renames it where the file system has no hard links.
void keepUnder(const QString& asidePath, const QString& storePath) {
    if (::link(QFile::encodeName(storePath).constData(),
               QFile::encodeName(asidePath).constData()) != 0)
        move(storePath, asidePath);
}

} // namespace

std::vector<KeptCopy> keptCopies(const QString& storePath) {
    const QFileInfo store(storePath);
    const QString pattern = store.completeBaseName() + u'-' + setAside + u"*." + store.suffix();
    const QStringList aside =
        store.dir().entryList({pattern}, QDir::Files, QDir::Name | QDir::Reversed);
    std::vector<KeptCopy> kept;
    for (const QString& file : StoreCopy::names(storePath) + aside)
        kept.push_back({nameWithin(file, store), store.dir().filePath(file)});
    return kept;
}

QString goBackTo(const QString& copyPath, const QString& storePath) {
    try {
        UnfinishedStore incoming(storePath + u"-incoming-" +
                                 QString::number(QCoreApplication::applicationPid()));
        copyContent(copyPath, incoming.path());
        const QString log = storePath + u"-wal";
        const std::unique_ptr<LockedStore> store = locked(storePath);
        const bool isThere = QFileInfo::exists(storePath);
        const QString asidePath =
            isThere || hasLog(storePath) ? freePath(QFileInfo(storePath)) : QString();
        if (isThere)
            keepUnder(asidePath, storePath);
        if (hasLog(storePath))
            move(log, asidePath + u"-wal");
        QFile::remove(log);
        QFile::remove(storePath + u"-shm");
        incoming.finish(storePath);
        syncFolder(QFileInfo(storePath).path());
        return asidePath;
    } catch (const SQLite::Exception& error) {
        fail(QString::fromUtf8(error.what()), error.getExtendedErrorCode(), storePath);
    }
}

} // namespace kovamo
