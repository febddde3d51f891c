#include "LiveFetch.h"

#include "platform/objectstore/file/StoreError.h"

#include <algorithm>

namespace kovamo {

LiveFetch::LiveFetch(ManagedObjectContext& context, FetchRequest request)
    : m_context(context), m_request(std::move(request)) {
    refetch();
    connect(&context, &ManagedObjectContext::objectsDidChange, this, &LiveFetch::follow);
}

ManagedObject& LiveFetch::object(int row) const {
    return m_context.object(m_ids.at(static_cast<std::size_t>(row)));
}

int LiveFetch::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_ids.size());
}

void LiveFetch::follow(const ObjectChanges& changes) {
    // With several changes at once the list is not sorted in between, so the binary search for one
    // record's place would fail; with a limit, the record that moves up is not known here.
    const auto touched = changes.inserted.size() + changes.updated.size() + changes.deleted.size();
    if (changes.everything || touched > 1 || m_request.fetchLimit)
        return refetch();
    for (const ManagedObject* object : changes.inserted)
        insert(*object);
    for (const ManagedObject* object : changes.updated)
        update(*object);
    for (const ManagedObject* object : changes.deleted)
        remove(*object);
}

void LiveFetch::refetch() {
    beginResetModel();
    try {
        m_ids = m_context.fetchIDs(m_request);
    } catch (const StoreError&) {
        m_ids.clear();
    }
    endResetModel();
}

void LiveFetch::insert(const ManagedObject& object) {
    if (!matches(object))
        return;
    const std::optional<int> found = place(object);
    if (!found)
        return refetch();
    const int at = *found;
    // A pending record is already part of a fetch that ran before it was announced.
    if (at > 0 && m_ids[static_cast<std::size_t>(at) - 1] == object.objectID())
        return;
    beginInsertRows({}, at, at);
    m_ids.insert(m_ids.begin() + at, object.objectID());
    endInsertRows();
}

void LiveFetch::remove(const ManagedObject& object) {
    const int at = rowOf(object.objectID());
    if (at < 0)
        return;
    beginRemoveRows({}, at, at);
    m_ids.erase(m_ids.begin() + at);
    endRemoveRows();
}

void LiveFetch::update(const ManagedObject& object) {
    const int from = rowOf(object.objectID());
    if (from < 0)
        return insert(object);
    if (!matches(object))
        return remove(object);
    m_ids.erase(m_ids.begin() + from);
    const std::optional<int> found = place(object);
    m_ids.insert(m_ids.begin() + from, object.objectID());
    if (!found)
        return refetch();
    const int to = *found;
    if (to != from) {
        beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
        m_ids.erase(m_ids.begin() + from);
        m_ids.insert(m_ids.begin() + to, object.objectID());
        endMoveRows();
    }
    Q_EMIT dataChanged(index(to), index(to));
}

int LiveFetch::rowOf(ObjectID id) const {
    const auto found = std::ranges::find(m_ids, id);
    return found == m_ids.end() ? -1 : static_cast<int>(found - m_ids.begin());
}

std::optional<int> LiveFetch::place(const ManagedObject& object) const {
    bool isComplete = true;
    const auto precedes = [&](ObjectID a, ObjectID b) {
        const ManagedObject &first = m_context.object(a), &second = m_context.object(b);
        isComplete = isComplete && first.exists() && second.exists();
        return isComplete &&
               m_request.precedes(m_context.entity(), a, first.values(), b, second.values());
    };
    const auto found = std::ranges::upper_bound(m_ids, object.objectID(), precedes);
    return isComplete ? std::optional(static_cast<int>(found - m_ids.begin())) : std::nullopt;
}

bool LiveFetch::matches(const ManagedObject& object) const {
    return m_request.predicate.matches(m_context.entity(), object.values());
}

} // namespace kovamo
