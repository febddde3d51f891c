#include "StoreCopy.h"

#include "platform/foundation/Formatters.h"
#include "platform/foundation/SyncFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <sqlite3.h>
#include <xxhash.h>

namespace kovamo {

namespace {

constexpr int keptCopies = 3;

QDir folderOf(const QString& storePath) {
    return QFileInfo(storePath).dir();
}

QString copyOfToday(const QString& storePath) {
    const QFileInfo store(storePath);
    return store.completeBaseName() + u'-' + dayText(Clock::now()) + u'.' + store.suffix();
}

/// How many copies are named by a day in the future: the clock was ahead once, or is behind now.
qsizetype copiesToCome(const QStringList& names, const QString& storePath) {
    const QString today = copyOfToday(storePath);
    return std::ranges::count_if(names, [&](const QString& name) { return name > today; });
}

/// The number that tells a store from another one at the same path.
std::uint32_t numberOf(SQLite::Database& store) {
    return store.execAndGet("PRAGMA application_id").getUInt();
}

std::uint32_t markFor(std::uint32_t store, const QString& name) {
    const QByteArray bytes = name.toUtf8();
    return XXH32(bytes.constData(), static_cast<std::size_t>(bytes.size()), store);
}

/// Whether the file of that name is a copy that the store with that number has made: it bears the
/// mark that goes with the number and its name.
bool isCopyOf(std::uint32_t store, const QDir& folder, const QString& name) {
    return UnfinishedStore::markOf(folder.filePath(name)) == markFor(store, name);
}

/// Whether a file is one that StoreCopy makes: nothing, or the beginning of a database.
bool isUnfinished(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) &&
           (file.size() == 0 || file.read(15) == QByteArrayView("SQLite format 3"));
}

/// A path for the unfinished copy, once those that killed processes left are deleted. If another
/// process is writing one right now, that copy fails to get its name, and this one is as good.
QString freedPath(const QString& storePath) {
    QDir folder = folderOf(storePath);
    const QString base = u'.' + QFileInfo(storePath).fileName() + u"-copy-";
    static const QRegularExpression digits(QStringLiteral("^[0-9]+$"));
    for (const QString& left : folder.entryList({base + u'*'}, QDir::Files | QDir::Hidden))
        if (digits.match(left.mid(base.size())).hasMatch() && isUnfinished(folder.filePath(left)))
            folder.remove(left);
    return folder.filePath(base + QString::number(QCoreApplication::applicationPid()));
}

} // namespace

StoreCopy::StoreCopy(SQLite::Database& source, const QString& storePath)
    : m_storePath(storePath), m_store(numberOf(source)), m_unfinished(freedPath(storePath)),
      m_target(std::in_place, m_unfinished.path().toStdString(), SQLite::OPEN_READWRITE) {
    // The name is given last: nobody opens the copy before it is complete and on the disk.
    m_target->exec("PRAGMA journal_mode = OFF");
    m_target->exec("PRAGMA synchronous = OFF");
    // In kibibytes: what is written here is never read.
    m_target->exec("PRAGMA cache_size = -64");
    m_backup.emplace(*m_target, source);
}

bool StoreCopy::advance(int pages) {
    // step(0) copies no page: it only makes SQLite fill in the number of pages.
    const int left = m_backup->getRemainingPageCount();
    m_backup->executeStep(std::clamp(left - 1, 0, pages));
    return m_backup->getRemainingPageCount() <= 1;
}

void StoreCopy::finish() {
    if (m_backup->executeStep(-1) != SQLITE_DONE)
        throw SQLite::Exception("The store is busy", SQLITE_BUSY);
    m_backup.reset();
    m_target.reset();
    QDir folder = folderOf(m_storePath);
    const QString name = copyOfToday(m_storePath);
    if (folder.exists(name) && !isCopyOf(m_store, folder, name))
        throw SQLite::Exception("A file of another has the copy's name", SQLITE_CANTOPEN);
    m_unfinished.finish(folder.filePath(name), markFor(m_store, name));
    QStringList own = names(m_storePath);
    own.removeIf([&](const QString& file) { return !isCopyOf(m_store, folder, file); });
    const qsizetype toCome = copiesToCome(own, m_storePath);
    for (const QString& old : own.first(toCome).mid(keptCopies) + own.mid(toCome + keptCopies))
        folder.remove(old);
    syncFolder(folder.path());
}

QStringList StoreCopy::names(const QString& storePath) {
    const QFileInfo store(storePath);
    const QString pattern =
        store.completeBaseName() + u"-[0-9]*-[0-9][0-9]-[0-9][0-9]." + store.suffix();
    return folderOf(storePath).entryList({pattern}, QDir::Files, QDir::Name | QDir::Reversed);
}

std::optional<QString> StoreCopy::newest(const QString& storePath) {
    const QStringList all = names(storePath);
    if (all.isEmpty())
        return {};
    const qsizetype toCome = copiesToCome(all, storePath);
    return folderOf(storePath).filePath(all[toCome < all.size() ? toCome : 0]);
}

std::optional<QString> StoreCopy::newestOfFormer(SQLite::Database& store,
                                                 const QString& storePath) {
    const QDir folder = folderOf(storePath);
    for (const QString& name : names(storePath))
        if (!isCopyOf(numberOf(store), folder, name))
            return folder.filePath(name);
    return {};
}

} // namespace kovamo
