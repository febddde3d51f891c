#include "DeletedTransactions.h"

#include "TransactionLine.h"
#include "platform/foundation/MainQueue.h"
#include "platform/objectstore/file/StoreError.h"

#include <QPointer>

namespace kovamo {

void DeletedTransactions::willDelete(const Transaction& record) {
    const auto values = record.values();
    m_deleted.emplace_back(values.begin(), values.end());
    say(deletionSentence(TransactionPresentation(record)));
}

Transaction* DeletedTransactions::stored(const Value& id) const {
    if (isAbsent(id))
        return nullptr;
    FetchRequest request = Transaction::fetchRequest();
    request.predicate = Predicate(QStringLiteral("id == %@"), {id});
    const auto found = m_context.fetch<Transaction>(request);
    return found.empty() ? nullptr : found.front();
}

Transaction* DeletedTransactions::takeBack() {
    if (m_deleted.empty())
        return nullptr;
    const std::vector<Value>& values = m_deleted.back();
    Transaction* record = nullptr;
    Transaction* inserted = nullptr;
    try {
        record = stored(values[Transaction::Id]);
        if (!record) {
            record = inserted = &m_context.insert<Transaction>();
            for (std::size_t attribute = 0; attribute < values.size(); ++attribute)
                inserted->setValue(attribute, values[attribute]);
            m_context.save();
        }
    } catch (const StoreError&) {
        // What is not stored is not shown: it would be gone at the next start.
        if (inserted)
            m_context.deleteObject(*inserted);
        const auto* title = std::get_if<QString>(&values[Transaction::Title]);
        say((title ? title->simplified() : QString()) + u" could not be brought back");
        return nullptr;
    }
    m_deleted.pop_back();
    say({});
    return record;
}

void DeletedTransactions::say(const QString& sentence) {
    constexpr std::chrono::seconds shown(8);
    ++m_sentenceNumber;
    if (m_sentence != sentence) {
        m_sentence = sentence;
        Q_EMIT sentenceChanged();
    }
    if (sentence.isEmpty())
        return;
    MainQueue::asyncAfter(shown, [deleted = QPointer(this), number = m_sentenceNumber] {
        if (deleted && deleted->m_sentenceNumber == number)
            deleted->say({});
    });
}

} // namespace kovamo
