#include "Book.h"

namespace kovamo {

FetchRequest transactions(const Predicate& predicate, std::vector<SortDescriptor> sortDescriptors) {
    FetchRequest request = Transaction::fetchRequest();
    request.predicate = predicate;
    request.sortDescriptors = std::move(sortDescriptors);
    return request;
}

Book::Book(std::initializer_list<Line> lines) : RecordStore(QStringLiteral("Kovamo")) {
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

} // namespace kovamo
