#include "Store.h"

#include "Guarded.h"
#include "StoredValue.h"
#include "platform/foundation/RadixSort.h"
#include "platform/objectstore/ManagedObjectContext.h"
#include "platform/objectstore/file/Soundness.h"
#include "platform/objectstore/file/StoreFile.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QThread>
#include <algorithm>
#include <limits>
#include <sqlite3.h>
#include <utility>

namespace kovamo {

namespace {

constexpr int schemaVersion = 1;
constexpr int busyTimeoutMilliseconds = 5000;

std::string utf8(const QString& text) {
    return text.toStdString();
}

QString sharedMemoryPath(const QString& path) {
    return path + u"-shm";
}

/// Runs a statement with the record's values and its identity; returns how many rows it changed.
int put(SQLite::Statement& statement, const ManagedObject& object) {
    int index = 0;
    for (const Value& value : object.values())
        bind(statement, ++index, value);
    statement.bind(++index, object.objectID());
    const int changed = statement.exec();
    statement.reset();
    return changed;
}

} // namespace

Store::Store(const QString& path, const EntityDescription& entity, Access access)
    : m_path(path), m_entity(entity), m_table(entity), m_access(access),
      m_copy(path, m_table.name) {
    if (access == Access::read && !QFileInfo(path).isFile())
        fail(QStringLiteral("There is no store"), SQLITE_CANTOPEN, path);
    if (isEmptied(path))
        fail(QStringLiteral("The store has lost its content"), SQLITE_CORRUPT, path, true);
    if (access == Access::readAndWrite)
        makeStoreFile(path);
    guarded(path, [&] { open(); });
}

void Store::open() {
    m_file = identityOf(m_path);
    m_database = std::make_unique<SQLite::Database>(
        utf8(m_path), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX, busyTimeoutMilliseconds);
    m_statements = std::make_unique<StatementCache>(*m_database);
    // Otherwise SQLite takes a misspelt column in double quotes for a text constant.
    sqlite3_db_config(m_database->getHandle(), SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    // Otherwise closing writes the log into a store that was refused or only read.
    checkpointOnClose(false);
    refuseNewer();
    refuseDamaged();
    // Until the write-ahead log is in use: EXTRA syncs the folder after the journal is deleted.
    // A power cut could bring the journal back otherwise, and undo the save.
    m_database->exec("PRAGMA synchronous = EXTRA");
    if (m_access == Access::readAndWrite)
        createSchema();
    else if (!isMade())
        fail(QStringLiteral("The file is no store of the app"), SQLITE_NOTADB, m_path);
    // Preparing this fails if the table lacks a column: better now than at the first save.
    (void)m_statements->use(m_table.selection);
    (void)changedElsewhere();
    m_sharedMemory = identityOf(sharedMemoryPath(m_path));
}

Store::~Store() {
    try {
        m_copy.abandon();
        if (isReplaced()) {
            if (m_access == Access::readAndWrite)
                leaveFile();
            return;
        }
        if (!m_wasWritten) {
            // Without a log, closing only removes its empty files.
            checkpointOnClose(!hasLog(m_path));
            return;
        }
        // A file that was damaged meanwhile is not written to.
        if (!faultOf(*m_database).isEmpty() || !wrongRecord().isEmpty())
            return;
        checkpointOnClose(true);
        // If another process has the store open, the log stays and nothing is sealed.
        m_database->setBusyTimeout(0);
        m_database->exec("PRAGMA wal_checkpoint(TRUNCATE)");
        seal(*m_database, m_path);
    } catch (const std::exception&) {
        // Without a seal, the next opening checks the whole file.
    }
}

void Store::checkpointOnClose(bool checkpoints) {
    sqlite3_db_config(m_database->getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE,
                      checkpoints ? 0 : 1, nullptr);
}

void Store::refuseNewer() const {
    const auto version = static_cast<int>(integer(QStringLiteral("PRAGMA user_version")));
    if (version > schemaVersion)
        fail(QStringLiteral("The store was written by a newer version of the app"), version,
             m_path);
}

void Store::refuseDamaged() const {
    if (isSealed(*m_database, m_path) || QFileInfo(m_path).size() == 0)
        return;
    if (const QString fault = faultOf(*m_database); !fault.isEmpty())
        fail(fault, SQLITE_CORRUPT, m_path, true);
    if (const QString wrong = wrongRecord(); !wrong.isEmpty())
        fail(wrong, SQLITE_MISMATCH, m_path);
    if (m_access == Access::readAndWrite)
        seal(*m_database, m_path);
}

QString Store::wrongRecord() const {
    if (!isMade())
        return {};
    const auto found = m_statements->use(m_table.wrongValue);
    if (!found->executeStep())
        return {};
    return QStringLiteral("The record %1 has a wrong %2")
        .arg(QString::fromUtf8(found->getColumn(0).getText()),
             QString::fromUtf8(found->getColumn(1).getText()));
}

bool Store::isMade() const {
    return integer(QStringLiteral("PRAGMA user_version")) == schemaVersion;
}

void Store::createSchema() {
    if (isMade())
        return;
    SQLite::Transaction transaction(*m_database, SQLite::TransactionBehavior::IMMEDIATE);
    if (isMade()) // by another process, in this moment
        return;
    if (integer(QStringLiteral("SELECT count(*) FROM sqlite_schema")) != 0)
        fail(QStringLiteral("The file is no store of the app"), SQLITE_NOTADB, m_path);
    for (const QString& definition : m_table.definitions)
        m_database->exec(utf8(definition));
    m_database->exec("PRAGMA user_version = " + std::to_string(schemaVersion));
    // Tells the copies of this store from those of another that was here before.
    m_database->exec("PRAGMA application_id = " +
                     std::to_string(QRandomGenerator::global()->bounded(1, 0x7fffffff)));
    transaction.commit();
}

StatementCache::Use Store::prepared(const QString& selection, const FetchRequest& request) const {
    QString sql = u"SELECT " + selection + u" FROM " + m_table.name;
    if (const QString condition = request.predicate.sql(m_entity); !condition.isEmpty())
        sql += u" WHERE " + condition;
    for (const SortDescriptor& descriptor : request.sortDescriptors)
        (void)m_entity.attributeIndex(descriptor.key);
    if (!request.sortDescriptors.empty())
        sql += u" ORDER BY " + sortKeys(request.sortDescriptors) + u",pk";
    else if (request.fetchLimit)
        sql += u" ORDER BY pk";
    if (request.fetchLimit)
        sql += u" LIMIT " + QString::number(*request.fetchLimit);
    StatementCache::Use statement = m_statements->use(sql);
    int index = 0;
    for (const Value& argument : request.predicate.arguments())
        bind(*statement, ++index, argument);
    return statement;
}

std::int64_t Store::integer(const QString& query) const {
    const auto statement = m_statements->use(query);
    statement->executeStep();
    return statement->getColumn(0).getInt64();
}

std::vector<ObjectID> Store::select(const FetchRequest& request) const {
    return guarded(m_path, [&] {
        const auto statement = prepared(QStringLiteral("pk"), request);
        std::vector<ObjectID> ids;
        if (statement->executeStep()) {
            const SQLite::Column id = statement->getColumn(0); // of whatever row is the current one
            do
                ids.push_back(id.getInt64());
            while (statement->executeStep());
        }
        // Cheaper than letting SQLite sort rows that it reads in the order of another index.
        if (request.sortDescriptors.empty())
            radixSort(ids, sortKey<ObjectID>);
        return ids;
    });
}

std::size_t Store::count(const FetchRequest& request) const {
    if (request.fetchLimit)
        return select(request).size();
    return guarded(m_path, [&] {
        const auto statement = prepared(QStringLiteral("count(*)"), request);
        statement->executeStep();
        return static_cast<std::size_t>(statement->getColumn(0).getInt64());
    });
}

void Store::readValues(SQLite::Statement& row, ObjectID id, std::vector<Value>& values) {
    values.clear();
    values.reserve(m_entity.attributes.size());
    int index = 0;
    for (const AttributeDescription& attribute : m_entity.attributes) {
        auto value = valueOf(row.getColumn(index++), attribute);
        if (!value)
            fail(QStringLiteral("The record %1 has a wrong %2").arg(id).arg(attribute.name),
                 SQLITE_MISMATCH, m_path);
        if (auto* text = std::get_if<QString>(&*value))
            *text = shared(*text);
        values.push_back(*std::move(value));
    }
}

std::vector<Value> Store::read(ObjectID id) {
    return guarded(m_path, [&] {
        const auto row = m_statements->use(m_table.selection);
        row->bind(1, id);
        std::vector<Value> values;
        if (row->executeStep())
            readValues(*row, id, values);
        return values;
    });
}

void Store::forEach(const Visitor& visit, ObjectID after) {
    guarded(m_path, [&] {
        const auto row = m_statements->use(m_table.everything);
        row->bind(1, after);
        const int idColumn = static_cast<int>(m_entity.attributes.size());
        std::vector<Value> values;
        while (row->executeStep()) {
            const ObjectID id = row->getColumn(idColumn).getInt64();
            readValues(*row, id, values);
            if (!visit(id, values))
                return;
        }
    });
}

std::unique_ptr<SQLite::Transaction> Store::readTransaction() {
    return guarded(m_path, [&] { return std::make_unique<SQLite::Transaction>(*m_database); });
}

QString Store::shared(const QString& text) {
    constexpr qsizetype most = 1000;
    const auto known = m_texts.constFind(text);
    if (known != m_texts.constEnd())
        return *known;
    return m_texts.size() < most ? *m_texts.insert(text) : text;
}

ObjectID Store::largestID() const {
    return integer(u"SELECT coalesce(max(pk), 0) FROM " + m_table.name);
}

ObjectID Store::unusedID() const {
    const ObjectID now = Clock::now().time_since_epoch().count();
    return guarded(m_path, [&] {
        const ObjectID largest = std::max(largestID(), m_largestDeleted);
        if (largest == std::numeric_limits<ObjectID>::max())
            fail(QStringLiteral("There is no identity left"), SQLITE_FULL, m_path);
        return std::max(now, largest + 1);
    });
}

bool Store::prepareCopy(int pages) {
    return m_copy.prepare(*m_database, pages);
}

void Store::prepareToWrite() {
    m_copy.keep(*m_database);
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
    (void)changedElsewhere(); // in the new mode, a look makes the memory beside the file
    m_sharedMemory = identityOf(sharedMemoryPath(m_path));
}

bool Store::write(const ObjectChanges& changes) {
    prepareToWrite();
    return guarded(m_path, [&] {
        const auto inserting = m_statements->use(m_table.insertion);
        const auto updating = m_statements->use(m_table.update);
        const auto deleting = m_statements->use(m_table.deletion);
        SQLite::Transaction transaction(*m_database, SQLite::TransactionBehavior::IMMEDIATE);
        if (!changes.inserted.empty() && changes.inserted.front()->objectID() <= largestID())
            return false;
        for (const ManagedObject* object : changes.inserted)
            put(*inserting, *object);
        for (const ManagedObject* object : changes.updated)
            if (put(*updating, *object) == 0)
                put(*inserting, *object); // another writer deleted it: an edit is never lost
        for (const ManagedObject* object : changes.deleted) {
            deleting->bind(1, object->objectID());
            deleting->exec();
            deleting->reset();
            m_largestDeleted = std::max(m_largestDeleted, object->objectID());
        }
        transaction.commit();
        return true;
    });
}

std::optional<QString> Store::copyOfFormer() const {
    return guarded(m_path, [&]() -> std::optional<QString> {
        if (largestID() != 0)
            return {};
        return StoreCopy::newestOfFormer(*m_database, m_path);
    });
}

bool Store::changedElsewhere() {
    return guarded(m_path, [&] {
        const int version = static_cast<int>(integer(QStringLiteral("PRAGMA data_version")));
        return std::exchange(m_lastDataVersion, version) != version;
    });
}

bool Store::isReplaced() const {
    return m_hasLeft || identityOf(m_path) != m_file;
}

bool Store::isThere() const {
    return QFileInfo(m_path).size() > 0;
}

void Store::reopen() {
    m_copy.abandon();
    guarded(m_path, [&] { leaveFile(); });
    Store next(m_path, m_entity, m_access);
    m_database.swap(next.m_database);
    m_statements.swap(next.m_statements);
    std::swap(m_file, next.m_file);
    std::swap(m_sharedMemory, next.m_sharedMemory);
    std::swap(m_hasLeft, next.m_hasLeft);
    std::swap(m_lastDataVersion, next.m_lastDataVersion);
    m_wasWritten = false;
}

void Store::leaveFile() {
    if (m_hasLeft)
        return;
    // SQLite would take the log of one file for that of another, which has its name now.
    SQLite::Statement checkpoint(*m_database, "PRAGMA wal_checkpoint(TRUNCATE)");
    if (checkpoint.executeStep() && checkpoint.getColumn(0).getInt() != 0)
        throw SQLite::Exception("The store is busy", SQLITE_BUSY);
    checkpoint.reset();
    m_hasLeft = true;
    const QString sharedMemory = sharedMemoryPath(m_path);
    if (m_sharedMemory == FileIdentity() || identityOf(sharedMemory) != m_sharedMemory)
        return; // others lie there
    QFile::remove(m_path + u"-wal");
    QFile::remove(sharedMemory);
}

} // namespace kovamo
