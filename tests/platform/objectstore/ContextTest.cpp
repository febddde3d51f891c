#include "support/Book.h"

#include <random>

namespace kovamo {
namespace {

using Amounts = std::vector<std::int32_t>;

TEST(Context, ShowsItsFetchesWhatIsNotSavedYet) {
    const Predicate recurring(QStringLiteral("isRecurring == YES"));
    Book book({{1, "2024-05-15", "monthly"}, {2}, {3, "2024-05-15", "monthly"}});
    const auto saved = book.all();
    book.add({4, "2024-05-15", "monthly"});
    saved[1]->setIsRecurring(true);
    book.context.deleteObject(*saved[2]);
    EXPECT_EQ(book.amounts(transactions(recurring)), (Amounts{1, 2, 4}));
    FetchRequest largest = transactions(recurring, {{QStringLiteral("amount"), false}});
    EXPECT_EQ(book.amounts(largest), (Amounts{4, 2, 1}));
    EXPECT_EQ(book.context.count(largest), 3U);
    largest.fetchLimit = 1;
    EXPECT_EQ(book.context.count(largest), 1U);

    book.context.save();
    EXPECT_FALSE(book.context.hasChanges());
    EXPECT_EQ(book.all()[0], saved[0]) << "one object for a record";
    EXPECT_EQ(Book().amounts(transactions(recurring)), (Amounts{1, 2, 4})) << "after a restart";
}

TEST(Context, TellsOfChangesOnceForManyAndBeforeASaveEnds) {
    Book book;
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
    Book book({{1}, {2}});
    book.context.setAutomaticallyMergesChangesFromParent(true);
    book.elsewhere("UPDATE \"Transaction\" SET amount = 20 WHERE amount = 2");
    book.elsewhere("INSERT INTO \"Transaction\" (amount) VALUES (3)");
    EXPECT_EQ(book.amounts(), (Amounts{1, 20, 3}));

    book.all()[0]->setAmount(5);
    book.elsewhere("DELETE FROM \"Transaction\" WHERE amount = 1");
    book.context.save();
    EXPECT_EQ(Book().amounts(), (Amounts{5, 20, 3})) << "the edit was lost";
}

TEST(Context, RemembersNoFetchBeyondAChange) {
    Book book;
    book.context.setAutomaticallyMergesChangesFromParent(true);
    const FetchRequest requests[] = {
        transactions(Predicate(QStringLiteral("amount < %@"), {Value(5)})),
        transactions(Predicate(QStringLiteral("amount < %@"), {Value(7)}),
                     {{QStringLiteral("amount"), false}})};
    std::mt19937 random(5);
    for (int step = 0; step < 300; ++step) {
        const auto all = book.all();
        Transaction* any = all.empty() ? nullptr : all[random() % all.size()];
        const auto amount = static_cast<std::int32_t>(random() % 10);
        const auto change = random() % 6;
        if (change == 0 || !any)
            book.add({amount});
        else if (change == 1)
            any->setAmount(amount);
        else if (change == 2)
            book.context.deleteObject(*any);
        else if (change == 3)
            book.context.save();
        else if (change == 4)
            book.elsewhere("UPDATE \"Transaction\" SET amount = (amount + 3) % 10");
        for (const FetchRequest& request : requests) {
            std::vector<ObjectID> ids;
            for (const Transaction* transaction : book.all(request))
                ids.push_back(transaction->objectID());
            EXPECT_EQ(ids, book.context.fetchIDs(request)) << step;
            if (book.context.hasChanges())
                continue;
            EXPECT_EQ(book.amounts(request), Book().amounts(request)) << step;
        }
    }
}

TEST(Context, KeepsAnotherWritersRecordApartFromADeletedOne) {
    for (const char* later : {"2024-05-15 10:01", "2024-05-15 09:00"}) {
        const World world;
        Book book({{1}, {2}}), other;
        book.all()[1]->setTitle(QStringLiteral("edited"));
        other.context.deleteObject(*other.all()[1]);
        other.context.save();
        World::setTime(later);
        other.add({3});
        other.context.save();
        book.context.save();
        EXPECT_EQ(Book().amounts(), (Amounts{1, 2, 3})) << later;
    }
}

} // namespace
} // namespace kovamo
