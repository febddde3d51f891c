#pragma once

#include "support/RecordStore.h"

namespace kovamo {

/// A record of no app, with an attribute of each type.
class Note : public ManagedObject {
  public:
    enum Attribute : std::size_t { Due, Id, IsPinned, Pages, Title };

    Note(ManagedObjectContext& context, ObjectID objectID) : ManagedObject(context, objectID) {}

    [[nodiscard]] static const EntityDescription& entity();

    [[nodiscard]] std::optional<Instant> due() const { return optional<Instant>(Due); }
    void setDue(const std::optional<Instant>& due) { setOptional(Due, due); }
    [[nodiscard]] std::optional<QUuid> id() const { return optional<QUuid>(Id); }
    void setId(const QUuid& id) { setValue(Id, id); }
    [[nodiscard]] bool isPinned() const { return scalar<bool>(IsPinned); }
    void setIsPinned(bool isPinned) { setValue(IsPinned, isPinned); }
    [[nodiscard]] std::int32_t pages() const { return scalar<std::int32_t>(Pages); }
    void setPages(std::int32_t pages) { setValue(Pages, pages); }
    [[nodiscard]] std::optional<QString> title() const { return optional<QString>(Title); }
    void setTitle(const std::optional<QString>& title) { setOptional(Title, title); }
};

/// A request for the notes that meet a condition.
[[nodiscard]] FetchRequest notes(const Predicate& predicate = {},
                                 std::vector<SortDescriptor> sortDescriptors = {});

/// A note as a test writes it down.
struct Line {
    std::int32_t pages = 0;
    bool isPinned = false;
};

/// A real store of notes in the scratch folder of the world.
class Notebook : public RecordStore<Note> {
  public:
    Notebook(std::initializer_list<Line> lines = {});

    Note& add(const Line& line);
    /// The pages of the notes that a request fetches, in order.
    [[nodiscard]] std::vector<std::int32_t> pages(const FetchRequest& request = notes()) const {
        return each(&Note::pages, request);
    }
};

} // namespace kovamo
