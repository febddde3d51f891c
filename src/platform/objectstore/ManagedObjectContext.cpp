#include "ManagedObjectContext.h"

#include "RecordPlaces.h"
#include "platform/foundation/FatalError.h"
#include "platform/foundation/MainQueue.h"
#include "platform/objectstore/file/StoreError.h"
#include "platform/objectstore/store/Store.h"

#include <QPointer>
#include <span>
#include <utility>

namespace kovamo {

ManagedObjectContext::ManagedObjectContext(Store& store, const EntityDescription& entity)
    : m_store(store), m_entity(entity) {
    connect(&m_mergeTimer, &QTimer::timeout, this, [this] {
        try {
            reopenReplacedStore();
            mergeChanges();
        } catch (const StoreError&) {
            // A timer has no caller to throw to: the next fetch meets the same error and throws it.
        }
    });
}

ManagedObjectContext::~ManagedObjectContext() = default;

const QString& ManagedObjectContext::storePath() const {
    return m_store.path();
}

void ManagedObjectContext::requireEntity(const FetchRequest& request) const {
    if (request.entityName != m_entity.name)
        fatalError(QStringLiteral("There is no entity \"%1\"").arg(request.entityName));
}

std::vector<ObjectID> ManagedObjectContext::fetchIDs(const FetchRequest& request) {
    reopenReplacedStore();
    // One read transaction: pending records are sorted among stored ones, which another process
    // could delete before they are read.
    const auto reading = m_unsaved.isEmpty() ? nullptr : m_store.readTransaction();
    return selectIDs(request);
}

std::vector<ObjectID> ManagedObjectContext::selectIDs(const FetchRequest& request) {
    requireEntity(request);
    mergeChanges();
    if (m_unsaved.isEmpty())
        return m_store.select(request);
    // What is pending takes the place of no more records than that.
    FetchRequest wider = request;
    if (wider.fetchLimit)
        *wider.fetchLimit += static_cast<int>(m_unsaved.updated.size() + m_unsaved.deleted.size());
    std::vector<ObjectID> ids = m_store.select(wider);
    mergePending(request, ids);
    if (request.fetchLimit)
        ids.resize(std::min(ids.size(), static_cast<std::size_t>(*request.fetchLimit)));
    return ids;
}

std::vector<ManagedObject*> ManagedObjectContext::fetchObjects(const FetchRequest& request) {
    reopenReplacedStore();
    mergeChanges();
    if (const auto* remembered = m_memory.find(request))
        return *remembered;
    // One read transaction: otherwise another process could delete a record between the two reads.
    const std::unique_ptr<SQLite::Transaction> reading = m_store.readTransaction();
    const std::vector<ObjectID> ids = selectIDs(request);
    std::vector<ManagedObject*> objects;
    objects.reserve(ids.size());
    std::vector<ObjectID> unread;
    for (const ObjectID id : ids) {
        ManagedObject& found = object(id);
        if (found.m_values.empty() || found.m_isStale)
            unread.push_back(id);
        objects.push_back(&found);
    }
    m_store.read(unread, [this](ObjectID id, std::vector<Value> values) {
        object(id).take(std::move(values));
    });
    // Without merging, nothing tells when another process has made it out of date.
    if (m_mergesChanges)
        m_memory.keep(request, objects);
    return objects;
}

std::size_t ManagedObjectContext::count(const FetchRequest& request) {
    requireEntity(request);
    reopenReplacedStore();
    mergeChanges();
    return m_unsaved.isEmpty() ? m_store.count(request) : fetchIDs(request).size();
}

void ManagedObjectContext::forEach(
    ObjectID after, const std::function<bool(ObjectID, std::span<const Value>)>& visit) {
    bool goesOn = true;
    const auto visitStored = [&](ObjectID id, std::span<const Value> stored) {
        const auto found = m_objects.find(id);
        const ManagedObject* known = found == m_objects.end() ? nullptr : found->second.get();
        if (known && known->m_isDeleted)
            return true;
        goesOn = visit(id, known && known->m_isUpdated ? known->values() : stored);
        return goesOn;
    };
    m_store.forEach(visitStored, after);
    for (const ManagedObject* object : m_unsaved.inserted)
        if (goesOn && object->objectID() > after)
            goesOn = visit(object->objectID(), object->values());
}

void ManagedObjectContext::mergePending(const FetchRequest& request, std::vector<ObjectID>& ids) {
    std::erase_if(ids, [this](ObjectID id) {
        const auto found = m_objects.find(id);
        return found != m_objects.end() &&
               (found->second->m_isUpdated || found->second->m_isDeleted);
    });
    const auto precedes = [&](const ManagedObject* object, ObjectID id) {
        return request.precedes(m_entity, object->objectID(), object->values(), id,
                                this->object(id).values());
    };
    for (const auto* pending : {&m_unsaved.inserted, &m_unsaved.updated})
        for (const ManagedObject* object : *pending)
            if (request.predicate.matches(m_entity, object->values()))
                ids.insert(std::upper_bound(ids.begin(), ids.end(), object, precedes),
                           object->objectID());
}

ManagedObject& ManagedObjectContext::object(ObjectID id) {
    std::unique_ptr<ManagedObject>& object = m_objects[id];
    if (!object)
        object = m_entity.makeObject(*this, id);
    return *object;
}

bool ManagedObjectContext::read(const ManagedObject& object) {
    object.take(m_store.read(object.objectID()));
    return !object.m_values.empty();
}

ManagedObject& ManagedObjectContext::insertObject() {
    ObjectID id =
        m_unsaved.inserted.empty() ? m_store.unusedID() : m_unsaved.inserted.back()->objectID() + 1;
    while (m_objects.contains(id))
        ++id;
    ManagedObject& inserted = object(id);
    inserted.m_values = m_entity.initialValues();
    inserted.m_isInserted = true;
    m_memory.forget();
    m_unsaved.inserted.push_back(&inserted);
    announceLater(m_unannounced.inserted, inserted);
    return inserted;
}

void ManagedObjectContext::didUpdate(ManagedObject& object) {
    if (object.m_isDeleted)
        return;
    m_memory.forget();
    if (!object.m_isInserted && !std::exchange(object.m_isUpdated, true))
        m_unsaved.updated.push_back(&object);
    if (!object.m_isUnannounced)
        announceLater(m_unannounced.updated, object);
}

void ManagedObjectContext::deleteObject(ManagedObject& object) {
    if (std::exchange(object.m_isDeleted, true))
        return;
    m_memory.forget();
    std::erase(m_unsaved.inserted, &object);
    std::erase(m_unsaved.updated, &object);
    if (!object.m_isInserted)
        m_unsaved.deleted.push_back(&object);
    std::erase(m_unannounced.updated, &object);
    if (std::erase(m_unannounced.inserted, &object) == 0)
        announceLater(m_unannounced.deleted, object);
}

void ManagedObjectContext::save() {
    if (m_unsaved.isEmpty())
        return announce();
    do {
        if (m_store.isReplaced())
            reopenStore();
        mergeChanges();
        announce();
        while (!m_store.write(m_unsaved))
            renumberInserted();
    } while (m_store.isReplaced());
    for (ManagedObject* object : m_unsaved.inserted)
        object->m_isInserted = false;
    for (ManagedObject* object : m_unsaved.updated)
        object->m_isUpdated = false;
    for (ManagedObject* object : m_unsaved.deleted) {
        auto node = m_objects.extract(object->objectID());
        m_deletedObjects.push_back(std::move(node.mapped()));
    }
    m_unsaved = {};
    m_memory.forget();
}

void ManagedObjectContext::renumberInserted() {
    m_memory.forget();
    ObjectID id = m_store.unusedID();
    for (ManagedObject* object : m_unsaved.inserted) {
        auto node = m_objects.extract(object->objectID());
        while (m_objects.contains(id))
            ++id;
        node.key() = object->m_objectID = id++;
        m_objects.insert(std::move(node));
    }
    announceEverything();
}

void ManagedObjectContext::prepareToSave() {
    constexpr int pages = 64;
    constexpr std::chrono::milliseconds pause(5);
    MainQueue::asyncAfter(pause, [context = QPointer(this)] {
        if (context && !context->m_store.prepareCopy(pages))
            context->prepareToSave();
    });
}

void ManagedObjectContext::announceLater(std::vector<ManagedObject*>& changes,
                                         ManagedObject& object) {
    changes.push_back(&object);
    object.m_isUnannounced = true;
    announceLater();
}

void ManagedObjectContext::announceLater() {
    if (!std::exchange(m_willAnnounce, true))
        QMetaObject::invokeMethod(this, &ManagedObjectContext::announce, Qt::QueuedConnection);
}

void ManagedObjectContext::announce() {
    m_willAnnounce = false;
    if (m_unannounced.isEmpty())
        return;
    const ObjectChanges changes = std::exchange(m_unannounced, {});
    for (const auto* objects : {&changes.inserted, &changes.updated, &changes.deleted})
        for (ManagedObject* object : *objects)
            object->m_isUnannounced = false;
    Q_EMIT objectsDidChange(changes);
}

void ManagedObjectContext::setAutomaticallyMergesChangesFromParent(bool merges) {
    m_mergesChanges = merges;
    m_memory.forget();
    // Asking SQLite costs microseconds, and no file watcher can tell when a save is complete.
    m_mergeTimer.setTimerType(Qt::VeryCoarseTimer);
    if (merges)
        m_mergeTimer.start(std::chrono::seconds(1));
    else
        m_mergeTimer.stop();
}

void ManagedObjectContext::reopenReplacedStore() {
    if (!m_mergesChanges || !m_store.isReplaced() || !m_store.isThere())
        return;
    try {
        reopenStore();
    } catch (const StoreError&) {
        // It may not be complete yet. Until it can be opened, the former file's records show.
    }
}

void ManagedObjectContext::reopenStore() {
    m_store.reopen();
    m_memory.forget();
    RecordPlaces places(m_store, m_entity);
    for (const auto& [id, object] : m_objects)
        places.avoid(id);
    std::vector<std::unique_ptr<ManagedObject>> objects;
    for (auto& [id, object] : m_objects)
        objects.push_back(std::move(object));
    m_objects.clear();
    // Where two objects claim one record, the one with values gets it.
    std::stable_partition(objects.begin(), objects.end(),
                          [](const auto& object) { return !object->m_values.empty(); });
    for (std::unique_ptr<ManagedObject>& object : objects) {
        object->makeStale();
        object->m_objectID = places.placeOf(object->m_objectID, object->m_values);
        if (m_objects.contains(object->m_objectID) && !object->m_values.empty())
            object->m_objectID = places.unused();
        const auto [place, isFree] = m_objects.try_emplace(object->m_objectID, std::move(object));
        if (!isFree) // its values were never read, so nothing is lost
            m_deletedObjects.push_back(std::move(object));
    }
    renumberInserted();
}

void ManagedObjectContext::mergeChanges() {
    if (!m_mergesChanges || !m_store.changedElsewhere())
        return;
    m_memory.forget();
    for (const auto& [id, object] : m_objects)
        object->makeStale();
    announceEverything();
}

} // namespace kovamo
