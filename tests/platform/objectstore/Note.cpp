#include "Note.h"

namespace kovamo {

const EntityDescription& Note::entity() {
    using enum AttributeType;
    static const EntityDescription entity{
        .name = QStringLiteral("Note"),
        .attributes = {{QStringLiteral("due"), date, true},
                       {QStringLiteral("id"), uuid, true},
                       {QStringLiteral("isPinned"), boolean, false},
                       {QStringLiteral("pages"), integer32, false},
                       {QStringLiteral("title"), string, true}},
        .indexes = {{{QStringLiteral("isPinned")}, {QStringLiteral("due")}},
                    {{QStringLiteral("pages"), false}}},
        .identity = QStringLiteral("id"),
        .makeObject = [](ManagedObjectContext& context, ObjectID id)
            -> std::unique_ptr<ManagedObject> { return std::make_unique<Note>(context, id); },
    };
    return entity;
}

FetchRequest notes(const Predicate& predicate, std::vector<SortDescriptor> sortDescriptors) {
    return {.entityName = Note::entity().name,
            .predicate = predicate,
            .sortDescriptors = std::move(sortDescriptors)};
}

Notebook::Notebook(std::initializer_list<Line> lines) : RecordStore(QStringLiteral("Notes")) {
    for (const Line& line : lines)
        add(line);
    context.save();
}

Note& Notebook::add(const Line& line) {
    Note& note = context.insert<Note>();
    note.setId(QUuid::createUuid());
    note.setTitle(QStringLiteral("title"));
    note.setPages(line.pages);
    note.setIsPinned(line.isPinned);
    note.setDue(at("2024-05-15"));
    return note;
}

} // namespace kovamo
