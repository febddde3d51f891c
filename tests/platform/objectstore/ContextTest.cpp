#include "Note.h"

#include <random>

namespace kovamo {
namespace {

using Pages = std::vector<std::int32_t>;

TEST(Context, ShowsItsFetchesWhatIsNotSavedYet) {
    const Predicate pinned(QStringLiteral("isPinned == YES"));
    Notebook book({{1, true}, {2}, {3, true}});
    const auto saved = book.all();
    book.add({4, true});
    saved[1]->setIsPinned(true);
    book.context.deleteObject(*saved[2]);
    EXPECT_EQ(book.pages(notes(pinned)), (Pages{1, 2, 4}));
    FetchRequest largest = notes(pinned, {{QStringLiteral("pages"), false}});
    EXPECT_EQ(book.pages(largest), (Pages{4, 2, 1}));
    EXPECT_EQ(book.context.count(largest), 3U);
    largest.fetchLimit = 1;
    EXPECT_EQ(book.context.count(largest), 1U);

    book.context.save();
    EXPECT_FALSE(book.context.hasChanges());
    EXPECT_EQ(book.all()[0], saved[0]) << "one object for a record";
    EXPECT_EQ(Notebook().pages(notes(pinned)), (Pages{1, 2, 4})) << "after a restart";
}

TEST(Context, TellsOfChangesOnceForManyAndBeforeASaveEnds) {
    Notebook book;
    std::vector<std::size_t> told;
    QObject::connect(
        &book.context, &ManagedObjectContext::objectsDidChange,
        [&](const ObjectChanges& changes) { told.push_back(changes.inserted.size()); });
    book.add({1});
    book.add({2});
    book.context.deleteObject(book.add({3}));
    EXPECT_TRUE(told.empty());
    book.context.save();
    EXPECT_EQ(told, (std::vector<std::size_t>{2}));
}

TEST(Context, MergesWhatAnotherWriterSaved) {
    Notebook book({{1}, {2}});
    book.context.setAutomaticallyMergesChangesFromParent(true);
    book.elsewhere("UPDATE Note SET pages = 20 WHERE pages = 2");
    book.elsewhere("INSERT INTO Note (pages) VALUES (3)");
    EXPECT_EQ(book.pages(), (Pages{1, 20, 3}));

    book.all()[0]->setPages(5);
    book.elsewhere("DELETE FROM Note WHERE pages = 1");
    book.context.save();
    EXPECT_EQ(Notebook().pages(), (Pages{5, 20, 3})) << "the edit was lost";
}

TEST(Context, RemembersNoFetchBeyondAChange) {
    Notebook book;
    book.context.setAutomaticallyMergesChangesFromParent(true);
    const FetchRequest requests[] = {notes(Predicate(QStringLiteral("pages < %@"), {Value(5)})),
                                     notes(Predicate(QStringLiteral("pages < %@"), {Value(7)}),
                                           {{QStringLiteral("pages"), false}})};
    std::mt19937 random(5);
    for (int step = 0; step < 300; ++step) {
        const auto all = book.all();
        Note* any = all.empty() ? nullptr : all[random() % all.size()];
        const auto pages = static_cast<std::int32_t>(random() % 10);
        const auto change = random() % 6;
        if (change == 0 || !any)
            book.add({pages});
        else if (change == 1)
            any->setPages(pages);
        else if (change == 2)
            book.context.deleteObject(*any);
        else if (change == 3)
            book.context.save();
        else if (change == 4)
            book.elsewhere("UPDATE Note SET pages = (pages + 3) % 10");
        for (const FetchRequest& request : requests) {
            std::vector<ObjectID> ids;
            for (const Note* note : book.all(request))
                ids.push_back(note->objectID());
            EXPECT_EQ(ids, book.context.fetchIDs(request)) << step;
            if (book.context.hasChanges())
                continue;
            EXPECT_EQ(book.pages(request), Notebook().pages(request)) << step;
        }
    }
}

TEST(Context, KeepsAnotherWritersRecordApartFromADeletedOne) {
    for (const char* later : {"2024-05-15 10:01", "2024-05-15 09:00"}) {
        const World world;
        Notebook book({{1}, {2}}), other;
        book.all()[1]->setTitle(QStringLiteral("edited"));
        other.context.deleteObject(*other.all()[1]);
        other.context.save();
        World::setTime(later);
        other.add({3});
        other.context.save();
        book.context.save();
        EXPECT_EQ(Notebook().pages(), (Pages{1, 2, 3})) << later;
    }
}

} // namespace
} // namespace kovamo
