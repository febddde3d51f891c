#include "BulkWrite.h"

#include "Guarded.h"
#include "StoredValue.h"

#include <sqlite3.h>

namespace kovamo {

BulkWrite::BulkWrite(Store& store) : m_store(store) {
    store.prepareToWrite();
    guarded(m_store.m_path, [&] {
        // In kibibytes: every record goes into a page of each index that any other may be in, too.
        store.m_connection->database().exec("PRAGMA cache_size = -2000");
        m_inserting = store.m_connection->statements().use(store.m_table.insertion);
        m_updating = store.m_connection->statements().use(store.m_table.update);
        m_transaction.emplace(store.m_connection->database(),
                              SQLite::TransactionBehavior::IMMEDIATE);
        m_longWrite.emplace(m_store.m_path);
        m_nextID = store.unusedID();
    });
}

void BulkWrite::put(SQLite::Statement& statement, ObjectID id, std::span<const Value> values) {
    guarded(m_store.m_path, [&] {
        int index = 0;
        for (const Value& value : values)
            bind(statement, ++index, value);
        statement.bind(++index, id);
        statement.exec();
        statement.reset();
    });
}

void BulkWrite::insert(std::span<const Value> values) {
    put(*m_inserting, m_nextID++, values);
}

void BulkWrite::update(ObjectID id, std::span<const Value> values) {
    put(*m_updating, id, values);
}

void BulkWrite::commit() {
    guarded(m_store.m_path, [&] { m_transaction->commit(); });
    if (m_store.isReplaced())
        fail(QStringLiteral("The store was replaced meanwhile"), SQLITE_READONLY_DBMOVED,
             m_store.m_path);
}

} // namespace kovamo
