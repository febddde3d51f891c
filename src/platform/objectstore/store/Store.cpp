#include "Store.h"

#include "Guarded.h"
#include "StoredValue.h"
#include "platform/foundation/RadixSort.h"
#include "platform/objectstore/ManagedObjectContext.h"

#include <QFileInfo>
#include <algorithm>
#include <limits>
#include <sqlite3.h>

namespace kovamo {

namespace {

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
      m_connection(std::make_unique<StoreConnection>(path, m_table, access)),
      m_copy(path, m_table.name) {}

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
    StatementCache::Use statement = m_connection->statements().use(sql);
    int index = 0;
    for (const Value& argument : request.predicate.arguments())
        bind(*statement, ++index, argument);
    return statement;
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
        const auto row = m_connection->statements().use(m_table.selection);
        row->bind(1, id);
        std::vector<Value> values;
        if (row->executeStep())
            readValues(*row, id, values);
        return values;
    });
}

void Store::read(std::span<const ObjectID> ids,
                 const std::function<void(ObjectID, std::vector<Value>)>& take) {
    if (ids.empty())
        return;
    std::string list;
    for (const ObjectID id : ids)
        list += (list.empty() ? '[' : ',') + std::to_string(id);
    guarded(m_path, [&] {
        // One statement for all of them: a start reads hundreds, and to begin one takes as long as
        // to read a record.
        const auto row = m_connection->statements().use(m_table.several);
        row->bind(1, list + ']');
        const int idColumn = static_cast<int>(m_entity.attributes.size());
        while (row->executeStep()) {
            const ObjectID id = row->getColumn(idColumn).getInt64();
            std::vector<Value> values;
            readValues(*row, id, values);
            take(id, std::move(values));
        }
    });
}

void Store::forEach(const Visitor& visit, ObjectID after) {
    guarded(m_path, [&] {
        const auto row = m_connection->statements().use(m_table.everything);
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
    return guarded(m_path,
                   [&] { return std::make_unique<SQLite::Transaction>(m_connection->database()); });
}

QString Store::shared(const QString& text) {
    constexpr qsizetype most = 1000;
    const auto known = m_texts.constFind(text);
    if (known != m_texts.constEnd())
        return *known;
    return m_texts.size() < most ? *m_texts.insert(text) : text;
}

ObjectID Store::largestID() const {
    return m_connection->integer(u"SELECT coalesce(max(pk), 0) FROM " + m_table.name);
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
    return m_copy.prepare(m_connection->database(), pages);
}

void Store::prepareToWrite() {
    m_copy.keep(m_connection->database());
    m_connection->prepareToWrite();
}

bool Store::write(const ObjectChanges& changes) {
    prepareToWrite();
    return guarded(m_path, [&] {
        const auto inserting = m_connection->statements().use(m_table.insertion);
        const auto updating = m_connection->statements().use(m_table.update);
        const auto deleting = m_connection->statements().use(m_table.deletion);
        SQLite::Transaction transaction(m_connection->database(),
                                        SQLite::TransactionBehavior::IMMEDIATE);
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
        return StoreCopy::newestOfFormer(m_connection->database(), m_path);
    });
}

bool Store::changedElsewhere() {
    return m_connection->changedElsewhere();
}

bool Store::isReplaced() const {
    return m_connection->isReplaced();
}

bool Store::isThere() const {
    return QFileInfo(m_path).size() > 0;
}

void Store::reopen() {
    m_copy.abandon();
    guarded(m_path, [&] { m_connection->leave(); });
    m_connection = std::make_unique<StoreConnection>(m_path, m_table, m_access);
}

} // namespace kovamo
