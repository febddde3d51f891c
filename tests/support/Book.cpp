#include "Book.h"

#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

namespace kovamo {

namespace {

ManagedObjectContext& loaded(PersistentContainer& container) {
    container.loadPersistentStores([](const StoreError* error) { ASSERT_EQ(error, nullptr); });
    return container.viewContext();
}

} // namespace

Book::Book(std::initializer_list<Line> lines)
    : container(QStringLiteral("Kovamo"), Transaction::entity()), context(loaded(container)) {
    for (const Line& line : lines)
        add(line);
    context.save();
}

Transaction& Book::add(const Line& line) {
    auto& transaction = context.insert<Transaction>();
    transaction.setId(QUuid::createUuid());
    transaction.setTitle(QStringLiteral("title"));
    transaction.setEmoji(QStringLiteral("🙂"));
    transaction.setAmount(line.amount);
    transaction.setIsPositive(line.isPositive);
    transaction.setIsRecurring(line.recurringType != nullptr);
    transaction.setRecurringType(QString::fromUtf8(line.recurringType));
    transaction.setStartDate(at(line.start));
    transaction.setEndDate(at(line.end));
    return transaction;
}

void Book::elsewhere(const std::string& sql) const {
    SQLite::Database(container.storePath().toStdString(), SQLite::OPEN_READWRITE).exec(sql);
}

} // namespace kovamo
