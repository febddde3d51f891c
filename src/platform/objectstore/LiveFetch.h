#pragma once

#include "ManagedObjectContext.h"

#include <QAbstractListModel>

namespace kovamo {

/// The records that match a request, as a list model that follows its context. It holds only their
/// order; a record is read when it is first looked at. A store that cannot be read yields an empty
/// list.
class LiveFetch : public QAbstractListModel {
    Q_OBJECT

  public:
    /// Requires: `context` outlives the list.
    LiveFetch(ManagedObjectContext& context, FetchRequest request);

    /// The record at `row`. Requires: 0 ≤ `row` < rowCount().
    [[nodiscard]] ManagedObject& object(int row) const;

    /// The identities of the records, in order.
    [[nodiscard]] const std::vector<ObjectID>& objectIDs() const { return m_ids; }

    /// The row of a record; -1 for none.
    [[nodiscard]] int rowOf(ObjectID id) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;

    /// Nothing: what a row shows is up to the screen that derives from this.
    [[nodiscard]] QVariant data(const QModelIndex&, int) const override { return {}; }

  private:
    void follow(const ObjectChanges& changes);
    void refetch();
    void insert(const ManagedObject& object);
    void remove(const ManagedObject& object);
    void update(const ManagedObject& object);
    /// Where the record belongs; nothing where another process has deleted one that is listed.
    [[nodiscard]] std::optional<int> place(const ManagedObject& object) const;
    [[nodiscard]] bool matches(const ManagedObject& object) const;

    ManagedObjectContext& m_context;
    FetchRequest m_request;
    std::vector<ObjectID> m_ids;
};

} // namespace kovamo
