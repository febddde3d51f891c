#include "StoreCopy.h"

#include "StoreFile.h"
#include "platform/foundation/Formatters.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <sqlite3.h>

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

/// How many of the copies' names are of days to come: the clock was ahead once, or is behind now.
qsizetype copiesToCome(const QStringList& names, const QString& storePath) {
    const QString today = copyOfToday(storePath);
    return std::ranges::count_if(names, [&](const QString& name) { return name > today; });
}

/// Takes away what a killed process left in the making. Should another one be at it right now, its
/// copy fails to get its name, and this one is as good.
QString freedPath(const QString& storePath) {
    QDir folder = folderOf(storePath);
    for (const QString& left : folder.entryList({QFileInfo(storePath).fileName() + u"-copy-*"}))
        folder.remove(left);
    return storePath + u"-copy-" + QString::number(QCoreApplication::applicationPid());
}

} // namespace

StoreCopy::StoreCopy(SQLite::Database& source, const QString& storePath)
    : m_storePath(storePath), m_unfinished(freedPath(storePath)),
      m_target(std::in_place, m_unfinished.path().toStdString(), SQLite::OPEN_READWRITE) {
    // The name is given last: nobody opens the copy before it is complete and on the disk.
    m_target->exec("PRAGMA journal_mode = OFF");
    m_target->exec("PRAGMA synchronous = OFF");
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
    m_unfinished.finish(folder.filePath(copyOfToday(m_storePath)));
    const QStringList all = names(m_storePath);
    const qsizetype toCome = copiesToCome(all, m_storePath);
    for (const QString& old : all.first(toCome).mid(keptCopies) + all.mid(toCome + keptCopies))
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

} // namespace kovamo
