#include "Ledger.h"

#include <gtest/gtest.h>

namespace kovamo {
namespace {

using Amounts = std::vector<std::int32_t>;

const Predicate flagged(QStringLiteral("flag == YES"));

TEST(Context, ShowsItsFetchesWhatIsNotSavedYet) {
    const World world("2024-05-15 10:00");
    Ledger ledger;
    ledger.add(1).set(Entry::Flag, true);
    Entry& second = ledger.add(2);
    Entry& third = ledger.add(3);
    third.set(Entry::Flag, true);
    ledger.context.save();

    ledger.add(4).set(Entry::Flag, true);
    second.set(Entry::Flag, true);
    ledger.context.deleteObject(third);
    EXPECT_EQ(ledger.amounts(entries(flagged)), (Amounts{1, 2, 4}));
    EXPECT_EQ(ledger.amounts(entries(flagged, {{QStringLiteral("amount"), false}})),
              (Amounts{4, 2, 1}));
    EXPECT_EQ(ledger.context.count(entries()), 3U);
    FetchRequest one = entries();
    one.fetchLimit = 1;
    EXPECT_EQ(ledger.context.count(one), 1U);

    ledger.context.save();
    EXPECT_FALSE(ledger.context.hasChanges());
    EXPECT_EQ(Ledger().amounts(entries(flagged)), (Amounts{1, 2, 4})) << "after a restart";
}

TEST(Context, HoldsOneObjectForARecord) {
    const World world("2024-05-15 10:00");
    Ledger ledger;
    const Entry* added = &ledger.add(7);
    ledger.context.save();
    EXPECT_EQ(ledger.context.fetch<Entry>(entries()), std::vector{const_cast<Entry*>(added)});
    EXPECT_EQ(&ledger.context.object(added->objectID()), added);
}

TEST(Context, TellsOfChangesOnceForManyAndBeforeASaveEnds) {
    const World world("2024-05-15 10:00");
    Ledger ledger;
    int told = 0;
    std::size_t inserted = 0;
    QObject::connect(&ledger.context, &ManagedObjectContext::objectsDidChange,
                     [&](const ObjectChanges& changes) {
                         ++told;
                         inserted = changes.inserted.size();
                     });
    ledger.add(1);
    ledger.add(2);
    ledger.context.deleteObject(ledger.add(3));
    EXPECT_EQ(told, 0);
    ledger.context.save();
    EXPECT_EQ(told, 1);
    EXPECT_EQ(inserted, 2U);
}

TEST(Context, MergesWhatAnotherWriterSaved) {
    const World world("2024-05-15 10:00");
    Ledger ours;
    ours.context.setAutomaticallyMergesChangesFromParent(true);
    Entry& edited = ours.add(1);
    ours.add(2);
    ours.context.save();
    EXPECT_EQ(ours.amounts(entries()), (Amounts{1, 2}));

    ours.elsewhere("UPDATE Entry SET amount = 20 WHERE amount = 2");
    ours.elsewhere("INSERT INTO Entry (amount) VALUES (3)");
    EXPECT_EQ(ours.amounts(entries()), (Amounts{1, 20, 3}));

    edited.set(Entry::Amount, std::int32_t{5});
    ours.elsewhere("DELETE FROM Entry WHERE amount = 1");
    ours.context.save();
    EXPECT_EQ(Ledger().amounts(entries()), (Amounts{5, 20, 3})) << "the edit was lost";
}

TEST(ContextDeathTest, NamesAnUnknownEntity) {
    const World world("2024-05-15 10:00");
    Ledger ledger;
    EXPECT_DEATH((void)ledger.context.fetchIDs({.entityName = QStringLiteral("Wallet")}),
                 "Fatal error: .*Wallet");
}

} // namespace
} // namespace kovamo
