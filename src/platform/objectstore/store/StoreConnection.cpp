#include "StoreConnection.h"

#include "Guarded.h"
#include "platform/objectstore/file/LongWrite.h"
#include "platform/objectstore/file/Soundness.h"
#include "platform/objectstore/file/WriteAheadLog.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QThread>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>
#include <utility>

namespace kovamo {

namespace {

constexpr int schemaVersion = 1;

QString sharedMemoryPath(const QString& path) {
    return path + u"-shm";
}

} // namespace

StoreConnection::StoreConnection(QString path, const EntityTable& table, StoreAccess access)
    : m_path(std::move(path)), m_table(table), m_access(access) {
    if (access == StoreAccess::read && !QFileInfo(m_path).isFile())
        fail(QStringLiteral("There is no store"), SQLITE_CANTOPEN, m_path);
    if (isEmptied(m_path))
        fail(QStringLiteral("The store has lost its content"), SQLITE_CORRUPT, m_path, true);
    if (access == StoreAccess::readAndWrite)
        makeStoreFile(m_path);
    guarded(m_path, [&] { open(); });
}

void StoreConnection::open() {
    m_file = identityOf(m_path);
    m_database = std::make_unique<SQLite::Database>(m_path.toStdString(),
                                                    SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX);
    waitForOthers();
    // In kibibytes. The records of a screen lie anywhere in the file, and are read once: of a
    // larger cache, a start has only the page faults.
    m_database->exec("PRAGMA cache_size = -256");
    m_statements = std::make_unique<StatementCache>(*m_database);
    // Otherwise SQLite takes a misspelt column in double quotes for a text constant.
    sqlite3_db_config(m_database->getHandle(), SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    // Otherwise closing writes the log into a store that was refused or only read.
    checkpointOnClose(*m_database, false);
    refuseNewer();
    refuseDamaged();
    // Until the write-ahead log is in use: EXTRA syncs the folder after the journal is deleted.
    // A power cut could bring the journal back otherwise, and undo the save.
    m_database->exec("PRAGMA synchronous = EXTRA");
    if (m_access == StoreAccess::readAndWrite)
        createSchema();
    else if (!isMade())
        fail(QStringLiteral("The file is no store of the app"), SQLITE_NOTADB, m_path);
    // Preparing this fails if the table lacks a column: better now than at the first save.
    (void)m_statements->use(m_table.selection);
    (void)changedElsewhere();
    m_sharedMemory = identityOf(sharedMemoryPath(m_path));
}

StoreConnection::~StoreConnection() {
    try {
        close();
    } catch (const std::exception&) {
        // Without a seal, the next opening checks the whole file.
    }
}

void StoreConnection::close() {
    if (isReplaced()) {
        if (m_access == StoreAccess::readAndWrite)
            leave();
        return;
    }
    if (!m_wasWritten) {
        // Without a log, closing only removes its empty files.
        checkpointOnClose(*m_database, !hasLog(m_path));
        return;
    }
    // A file that was damaged meanwhile is not written to.
    if (!faultOf(*m_database).isEmpty() || !wrongRecord().isEmpty())
        return;
    checkpointOnClose(*m_database, true);
    // If another process has the store open, the log stays and nothing is sealed.
    m_database->setBusyTimeout(0);
    m_database->exec("PRAGMA wal_checkpoint(TRUNCATE)");
    seal(*m_database, m_path);
}

void StoreConnection::waitForOthers() {
    const auto wait = [](void* connection, int attempt) -> int {
        return static_cast<StoreConnection*>(connection)->waitForOthers(attempt);
    };
    sqlite3_busy_handler(m_database->getHandle(), wait, this);
}

bool StoreConnection::waitForOthers(int attempt) {
    constexpr int pause = 2;
    constexpr int patience = busyTimeoutMilliseconds / pause;
    if (attempt == 0)
        m_lastAttempt = patience;
    if (attempt >= m_lastAttempt && LongWrite::isUnderWay(m_path))
        m_lastAttempt = attempt + patience;
    if (attempt >= m_lastAttempt)
        return false;
    sqlite3_sleep(pause);
    return true;
}

void StoreConnection::refuseNewer() const {
    const auto version = static_cast<int>(integer(QStringLiteral("PRAGMA user_version")));
    if (version > schemaVersion)
        fail(QStringLiteral("The store was written by a newer version of the app"), version,
             m_path);
}

void StoreConnection::refuseDamaged() const {
    if (isSealed(*m_database, m_path) || QFileInfo(m_path).size() == 0)
        return;
    if (const QString fault = faultOf(*m_database); !fault.isEmpty())
        fail(fault, SQLITE_CORRUPT, m_path, true);
    if (const QString wrong = wrongRecord(); !wrong.isEmpty())
        fail(wrong, SQLITE_MISMATCH, m_path);
    if (m_access == StoreAccess::readAndWrite)
        seal(*m_database, m_path);
}

QString StoreConnection::wrongRecord() const {
    if (!isMade())
        return {};
    const auto found = m_statements->use(m_table.wrongValue);
    if (!found->executeStep())
        return {};
    return QStringLiteral("The record %1 has a wrong %2")
        .arg(QString::fromUtf8(found->getColumn(0).getText()),
             QString::fromUtf8(found->getColumn(1).getText()));
}

bool StoreConnection::isMade() const {
    return integer(QStringLiteral("PRAGMA user_version")) == schemaVersion;
}

void StoreConnection::createSchema() {
    if (isMade())
        return;
    SQLite::Transaction transaction(*m_database, SQLite::TransactionBehavior::IMMEDIATE);
    if (isMade()) // by another process, in this moment
        return;
    if (integer(QStringLiteral("SELECT count(*) FROM sqlite_schema")) != 0)
        fail(QStringLiteral("The file is no store of the app"), SQLITE_NOTADB, m_path);
    for (const QString& definition : m_table.definitions)
        m_database->exec(definition.toStdString());
    m_database->exec("PRAGMA user_version = " + std::to_string(schemaVersion));
    // Tells the copies of this store from those of another that was here before.
    m_database->exec("PRAGMA application_id = " +
                     std::to_string(QRandomGenerator::global()->bounded(1, 0x7fffffff)));
    transaction.commit();
}

std::int64_t StoreConnection::integer(const QString& query) const {
    const auto statement = m_statements->use(query);
    statement->executeStep();
    return statement->getColumn(0).getInt64();
}

void StoreConnection::prepareToWrite() {
    if (m_wasWritten)
        return;
    // SQLite does not wait here: of two processes that switch at once, one gets SQLITE_BUSY.
    const auto setMode = [&] { return m_database->tryExec("PRAGMA journal_mode = WAL"); };
    const QDeadlineTimer deadline(busyTimeoutMilliseconds);
    int code = setMode();
    for (; code == SQLITE_BUSY && !deadline.hasExpired(); code = setMode())
        QThread::msleep(1);
    if (code != SQLITE_OK)
        fail(QString::fromUtf8(m_database->getErrorMsg()), m_database->getExtendedErrorCode(),
             m_path);
    m_wasWritten = true;
    (void)changedElsewhere(); // in write-ahead mode, reading makes the -shm file
    m_sharedMemory = identityOf(sharedMemoryPath(m_path));
}

bool StoreConnection::changedElsewhere() {
    return guarded(m_path, [&] {
        const int version = static_cast<int>(integer(QStringLiteral("PRAGMA data_version")));
        return std::exchange(m_lastDataVersion, version) != version;
    });
}

bool StoreConnection::isReplaced() const {
    return m_hasLeft || identityOf(m_path) != m_file;
}

void StoreConnection::leave() {
    if (m_hasLeft)
        return;
    // Otherwise SQLite takes this file's log for that of the file that has its name now.
    emptyLog(*m_database);
    m_hasLeft = true;
    const QString sharedMemory = sharedMemoryPath(m_path);
    if (m_sharedMemory == FileIdentity() || identityOf(sharedMemory) != m_sharedMemory)
        return; // they belong to the other file
    QFile::remove(m_path + u"-wal");
    QFile::remove(sharedMemory);
}

} // namespace kovamo
