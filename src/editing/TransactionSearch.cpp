#include "TransactionSearch.h"

#include "TransactionLine.h"
#include "ledger/Balance.h"
#include "platform/emoji/EmojiCatalogue.h"
#include "platform/foundation/Formatters.h"
#include "platform/foundation/ListDifference.h"
#include "platform/foundation/MainQueue.h"
#include "platform/objectstore/file/StoreError.h"

#include <QPointer>
#include <limits>
#include <utility>

namespace kovamo {

TransactionSearch::TransactionSearch(ManagedObjectContext& context, const LiveFetch& all)
    : m_context(context), m_all(all) {
    connect(&context, &ManagedObjectContext::objectsDidChange, this, &TransactionSearch::follow);
    passOn();
}

void TransactionSearch::passOn() {
    using Model = QAbstractItemModel;
    const auto ifAll = [this](auto pass) {
        return [this, pass](const QModelIndex&, int first, int last) {
            if (!m_found)
                pass(first, last);
        };
    };
    connect(&m_all, &Model::rowsAboutToBeInserted, this,
            ifAll([this](int first, int last) { beginInsertRows({}, first, last); }));
    connect(&m_all, &Model::rowsInserted, this, ifAll([this](int, int) { endInsertRows(); }));
    connect(&m_all, &Model::rowsAboutToBeRemoved, this,
            ifAll([this](int first, int last) { beginRemoveRows({}, first, last); }));
    connect(&m_all, &Model::rowsRemoved, this, ifAll([this](int, int) { endRemoveRows(); }));
    connect(&m_all, &Model::rowsAboutToBeMoved, this,
            [this](const QModelIndex&, int first, int last, const QModelIndex&, int to) {
                if (!m_found)
                    beginMoveRows({}, first, last, {}, to);
            });
    connect(&m_all, &Model::rowsMoved, this, ifAll([this](int, int) { endMoveRows(); }));
    connect(&m_all, &Model::dataChanged, this,
            [this](const QModelIndex& from, const QModelIndex& to) {
                if (!m_found)
                    Q_EMIT dataChanged(index(from.row()), index(to.row()));
            });
    connect(&m_all, &Model::modelAboutToBeReset, this, [this] {
        if (!m_found)
            beginResetModel();
    });
    connect(&m_all, &Model::modelReset, this, [this] {
        if (!m_found)
            endResetModel();
    });
}

const std::vector<ObjectID>& TransactionSearch::shown() const {
    return m_found ? *m_found : m_all.objectIDs();
}

void TransactionSearch::open() {
    if (std::exchange(m_isOpen, true))
        return;
    beginIndex();
    Q_EMIT isOpenChanged();
}

void TransactionSearch::close() {
    if (!m_isOpen)
        return;
    setQuery({});
    m_isOpen = false;
    m_index.reset();
    ++m_indexNumber;
    Q_EMIT isOpenChanged();
}

void TransactionSearch::setQuery(const QString& query) {
    if (std::exchange(m_query, query) == query)
        return;
    find();
    Q_EMIT queryChanged();
}

void TransactionSearch::follow(const ObjectChanges& changes) {
    if (!m_isOpen)
        return;
    if (changes.everything || !m_isIndexed) {
        beginIndex();
        if (!m_summary.isEmpty())
            return; // what was found stays until it is known anew
    } else {
        for (const auto* objects : {&changes.inserted, &changes.updated})
            for (const ManagedObject* object : *objects)
                m_index->put(object->objectID(), object->values());
        for (const ManagedObject* object : changes.deleted)
            m_index->remove(object->objectID());
    }
    find();
}

void TransactionSearch::beginIndex() {
    m_index.emplace(emojiName);
    m_index->reserve(m_all.objectIDs().size());
    m_isIndexed = false;
    m_lastIndexed = std::numeric_limits<ObjectID>::min();
    ++m_indexNumber;
    continueLater();
}

void TransactionSearch::continueLater() {
    constexpr std::chrono::milliseconds pause(1);
    MainQueue::asyncAfter(pause, [search = QPointer(this), number = m_indexNumber] {
        if (search && search->m_indexNumber == number && !search->m_isIndexed)
            search->continueIndex();
    });
}

void TransactionSearch::continueIndex() {
    constexpr std::size_t most = 2000;
    indexRecords(most);
    if (m_isIndexed)
        find();
    else
        continueLater();
}

void TransactionSearch::indexRecords(std::size_t most) {
    std::size_t count = 0;
    try {
        m_context.forEach(m_lastIndexed, [&](ObjectID id, std::span<const Value> values) {
            m_index->add(id, values);
            m_lastIndexed = id;
            return ++count < most;
        });
    } catch (const StoreError&) {
        // What cannot be read is not found, as the list itself does not show it.
    }
    if (count == most)
        return;
    m_index->sort();
    m_isIndexed = true;
}

void TransactionSearch::find() {
    const auto words = searchWords(m_query);
    if (words.empty()) {
        show(std::nullopt);
        return setSummary({});
    }
    if (!m_isIndexed)
        indexRecords(std::numeric_limits<std::size_t>::max());
    SearchIndex::Found found = m_index->find(words);
    const QString count = numberText(std::ssize(found.ids)) + u" found";
    setSummary(found.ids.empty() ? count : count + u", " + balanceText(found.sum));
    show(std::move(found.ids));
}

void TransactionSearch::show(std::optional<std::vector<ObjectID>> found) {
    const auto [first, removed, inserted] =
        listDifference(shown(), found ? *found : m_all.objectIDs());
    if (removed > 0) {
        beginRemoveRows({}, first, first + removed - 1);
        const auto at = shown().begin() + first;
        std::vector<ObjectID> left(shown().begin(), at);
        left.insert(left.end(), at + removed, shown().end());
        m_found = std::move(left);
        endRemoveRows();
    }
    if (inserted > 0)
        beginInsertRows({}, first, first + inserted - 1);
    m_found = std::move(found);
    if (inserted > 0)
        endInsertRows();
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

void TransactionSearch::setSummary(const QString& summary) {
    if (std::exchange(m_summary, summary) != summary)
        Q_EMIT summaryChanged();
}

int TransactionSearch::rowOf(ObjectID id) const {
    const auto found = std::ranges::find(shown(), id);
    return found == shown().end() ? -1 : static_cast<int>(found - shown().begin());
}

int TransactionSearch::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown().size());
}

QVariant TransactionSearch::data(const QModelIndex& index, int role) const {
    if (role != LineRole)
        return {};
    const ManagedObject& object = m_context.object(objectID(index.row()));
    return QVariant::fromValue(lineOf(static_cast<const Transaction&>(object)));
}

QHash<int, QByteArray> TransactionSearch::roleNames() const {
    return {{LineRole, "line"}};
}

} // namespace kovamo
