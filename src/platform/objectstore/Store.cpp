#include "Store.h"

#include "Guarded.h"
#include "ManagedObjectContext.h"
#include "StoredValue.h"
#include "platform/foundation/RadixSort.h"
#include "platform/objectstore/file/Soundness.h"
#include "platform/objectstore/file/StoreFile.h"

#include <QDeadlineTimer>
#include <QFileInfo>
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

CalendarDay today() {
    return Calendar().today();
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
    : m_path(path), m_entity(entity), m_table(entity) {
    if (access == Access::read && !QFileInfo(path).isFile())
        fail(QStringLiteral("There is no store"), SQLITE_CANTOPEN, path);
    if (isEmptied(path))
        fail(QStringLiteral("The store has lost its content"), SQLITE_CORRUPT, path);
    if (access == Access::readAndWrite)
        makeStoreFile(path);
    guarded(path, [&] {
        m_database.emplace(utf8(path), SQLite::OPEN_READWRITE | SQLite::OPEN_NOMUTEX,
                           busyTimeoutMilliseconds);
        m_statements.emplace(*m_database);
        // Otherwise SQLite takes a misspelt column in double quotes for a text constant.
        sqlite3_db_config(m_database->getHandle(), SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
        // Otherwise closing writes the log into a store that was refused or only read.
        checkpointOnClose(false);
        refuseNewer();
        refuseDamaged(access);
        // Until the write-ahead log is in use: EXTRA syncs the folder after the journal is deleted.
        // A power cut could bring the journal back otherwise, and undo the save.
        m_database->exec("PRAGMA synchronous = EXTRA");
        if (access == Access::readAndWrite)
            createSchema();
        else if (!isMade())
            fail(QStringLiteral("The file is no store of the app"), SQLITE_NOTADB, path);
        // Preparing this fails if the table lacks a column: better now than at the first save.
        (void)m_statements->use(m_table.selection);
        (void)changedElsewhere();
    });
}

Store::~Store() {
    try {
        m_copy.reset();
        if (!m_wasWritten) {
            // Without a log, closing only removes its empty files.
            checkpointOnClose(!hasLog(m_path));
            return;
        }
        // A file that was damaged meanwhile is not written to.
        if (!faultOf(*m_database).isEmpty())
            return;
        checkpointOnClose(true);
        // If another process has the store open, the log stays and nothing is sealed.
        m_database->setBusyTimeout(0);
        m_database->exec("PRAGMA wal_checkpoint(TRUNCATE)");
        seal(*m_database, m_path);
    } catch (const SQLite::Exception&) {
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

void Store::refuseDamaged(Access access) const {
    if (isSealed(*m_database, m_path) || QFileInfo(m_path).size() == 0)
        return;
    if (const QString fault = faultOf(*m_database); !fault.isEmpty())
        fail(fault, SQLITE_CORRUPT, m_path);
    if (access == Access::readAndWrite)
        seal(*m_database, m_path);
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

void Store::forEach(const std::function<bool(ObjectID, std::span<const Value>)>& visit) {
    guarded(m_path, [&] {
        const auto row = m_statements->use(m_table.everything);
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

bool Store::beginCopy() {
    if (!m_copy && integer(u"SELECT EXISTS (SELECT 1 FROM " + m_table.name + u')'))
        m_copy.emplace(*m_database, m_path);
    return m_copy.has_value();
}

bool Store::prepareCopy(int pages) {
    try {
        return m_dayOfCopy == today() || !beginCopy() || m_copy->advance(pages);
    } catch (const SQLite::Exception&) {
        // keepCopy() tries again before the write.
        m_copy.reset();
        return true;
    }
}

void Store::keepCopy() {
    const CalendarDay day = today();
    if (m_dayOfCopy == day)
        return;
    try {
        if (beginCopy())
            m_copy->finish();
    } catch (const SQLite::Exception&) {
        // If the disk has no room for a copy, saving is still worth trying.
    }
    m_copy.reset();
    m_dayOfCopy = day;
}

void Store::prepareToWrite() {
    keepCopy();
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

bool Store::changedElsewhere() {
    return guarded(m_path, [&] {
        const int version = static_cast<int>(integer(QStringLiteral("PRAGMA data_version")));
        return std::exchange(m_lastDataVersion, version) != version;
    });
}

} // namespace kovamo
