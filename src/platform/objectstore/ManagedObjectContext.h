#pragma once

#include "FetchMemory.h"
#include "ManagedObject.h"

#include <QObject>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <unordered_map>

namespace kovamo {

class Store;

/// The records that came, changed or went since the last time observers were told.
struct ObjectChanges {
    std::vector<ManagedObject*> inserted;
    std::vector<ManagedObject*> updated;
    std::vector<ManagedObject*> deleted;
    /// Another writer changed the store: anything may differ.
    bool everything = false;

    [[nodiscard]] bool isEmpty() const {
        return inserted.empty() && updated.empty() && deleted.empty() && !everything;
    }
};

/// The records of a store as one thread works on them: what it inserts, sets and deletes is seen
/// by its own fetches at once and by the store when it is saved. Main thread only.
class ManagedObjectContext : public QObject {
    Q_OBJECT

  public:
    /// Requires: `store` and `entity` outlive the context.
    ManagedObjectContext(Store& store, const EntityDescription& entity);
    ~ManagedObjectContext() override;

    [[nodiscard]] const EntityDescription& entity() const { return m_entity; }

    /// Where the store lies.
    [[nodiscard]] const QString& storePath() const;

    /// A new record of the kind that `T` stands for, pending until the next save. Throws StoreError
    /// when the store cannot be read.
    template<typename T>
    T& insert() {
        return static_cast<T&>(insertObject());
    }

    /// The records that match `request`, their values read. Throws StoreError when the store
    /// cannot be read; an unknown entity or attribute is a fatal error that names it.
    template<typename T>
    [[nodiscard]] std::vector<T*> fetch(const FetchRequest& request) {
        const std::vector<ManagedObject*> found = fetchObjects(request);
        std::vector<T*> objects(found.size());
        std::ranges::transform(found, objects.begin(),
                               [](ManagedObject* object) { return static_cast<T*>(object); });
        return objects;
    }

    /// The identities of the records that match `request`, in order; fails as fetch() does.
    [[nodiscard]] std::vector<ObjectID> fetchIDs(const FetchRequest& request);

    /// How many records match `request`; fails as fetch() does.
    [[nodiscard]] std::size_t count(const FetchRequest& request);

    /// Visits the records above the identity `after`, by identity, as a fetch sees them but without
    /// an object for each, for as long as `visit` returns true; fails as fetch() does.
    void forEach(ObjectID after,
                 const std::function<bool(ObjectID, std::span<const Value>)>& visit);

    /// The object that stands for the record `id`, its values read when they are asked for.
    [[nodiscard]] ManagedObject& object(ObjectID id);

    /// Deletes a record, pending until the next save.
    void deleteObject(ManagedObject& object);

    /// Writes all pending changes durably, or none: throws StoreError, keeps them pending and
    /// leaves the store as it was. Observers are told before the changes are written. Where another
    /// file has taken the place of the store's, they are written to that one: a changed record that
    /// it does not have is added to it.
    void save();

    /// Does ahead, in small steps of the main queue, what the first save of the day would have to
    /// do before it writes. For the moment in which a screen opens that saves.
    void prepareToSave();

    [[nodiscard]] bool hasChanges() const { return !m_unsaved.isEmpty(); }

    /// Whether what other writers save to the store shows here, and another file that takes its
    /// place: at the next fetch, and within a second or two without one.
    void setAutomaticallyMergesChangesFromParent(bool merges);

  Q_SIGNALS:
    /// Records came, changed or went: at the start of a save, else in the event loop's next turn.
    void objectsDidChange(const kovamo::ObjectChanges& changes);

  private:
    friend class ManagedObject;

    [[nodiscard]] std::vector<ManagedObject*> fetchObjects(const FetchRequest& request);
    ManagedObject& insertObject();
    /// Reads an object's values; returns whether it has any.
    bool read(const ManagedObject& object);
    void didUpdate(ManagedObject& object);
    void announceLater(std::vector<ManagedObject*>& changes, ManagedObject& object);
    void announceLater();
    void announceEverything() {
        m_unannounced.everything = true;
        announceLater();
    }
    void announce();
    void mergeChanges();
    /// Opens the file that has taken the place of the store's, if one has.
    void reopenReplacedStore();
    /// Opens the file that lies at the store's path now; each object stays with its record.
    void reopenStore();
    [[nodiscard]] std::vector<ObjectID> selectIDs(const FetchRequest& request);
    void renumberInserted();
    void mergePending(const FetchRequest& request, std::vector<ObjectID>& ids);
    void requireEntity(const FetchRequest& request) const;

    Store& m_store;
    const EntityDescription& m_entity;
    std::unordered_map<ObjectID, std::unique_ptr<ManagedObject>> m_objects;
    std::vector<std::unique_ptr<ManagedObject>> m_deletedObjects;
    ObjectChanges m_unsaved;
    ObjectChanges m_unannounced;
    FetchMemory m_memory;
    bool m_willAnnounce = false;
    bool m_mergesChanges = false;
    QTimer m_mergeTimer{this};
};

} // namespace kovamo
