#include "Book.h"

#include <SQLiteCpp/Database.h>

namespace kovamo {

namespace {

ManagedObjectContext& loaded(PersistentContainer& container) {
    container.loadPersistentStores([](const StoreError* error) { ASSERT_EQ(error, nullptr); });
    return container.viewContext();
}

} // namespace

FetchRequest transactions(const Predicate& predicate, std::vector<SortDescriptor> sortDescriptors) {
    FetchRequest request = Transaction::fetchRequest();
    request.predicate = predicate;
    request.sortDescriptors = std::move(sortDescriptors);
    return request;
}

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

std::vector<Transaction*> Book::all(const FetchRequest& request) const {
    return context.fetch<Transaction>(request);
}

std::vector<std::int32_t> Book::amounts(const FetchRequest& request) const {
    std::vector<std::int32_t> amounts;
    for (const Transaction* transaction : all(request))
        amounts.push_back(transaction->amount());
    return amounts;
}

void Book::elsewhere(const std::string& sql) const {
    SQLite::Database(container.storePath().toStdString(), SQLite::OPEN_READWRITE).exec(sql);
}

} // namespace kovamo
