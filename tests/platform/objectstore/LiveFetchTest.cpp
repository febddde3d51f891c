#include "platform/objectstore/LiveFetch.h"
#include "Note.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <random>

namespace kovamo {
namespace {

class Rows : public LiveFetch {
  public:
    using LiveFetch::LiveFetch;
    [[nodiscard]] QVariant data(const QModelIndex&, int) const override { return {}; }
    [[nodiscard]] std::vector<std::int32_t> pages() const {
        std::vector<std::int32_t> pages;
        for (int row = 0; row < rowCount(); ++row)
            pages.push_back(static_cast<const Note&>(object(row)).pages());
        return pages;
    }
};

TEST(LiveFetch, FollowsEveryChangeAsAFreshFetchWould) {
    Notebook book;
    const FetchRequest request =
        notes(Predicate(QStringLiteral("isPinned == YES")), {{QStringLiteral("pages"), false}});
    book.add({7, true});
    Rows rows(book.context, request);
    const QAbstractItemModelTester tester(&rows,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    std::mt19937 random(3);
    for (int step = 0; step < 400; ++step) {
        const auto pages = static_cast<std::int32_t>(random() % 20);
        const auto all = book.all();
        Note* any = all.empty() ? nullptr : all[random() % all.size()];
        if (!any || random() % 3 == 0)
            book.add({pages, true});
        else if (random() % 3 == 0)
            book.context.deleteObject(*any);
        else if (random() % 3 == 0)
            any->setIsPinned(random() % 2 == 0);
        else
            any->setPages(pages);
        if (const auto turn = random() % 3; turn == 1)
            QCoreApplication::processEvents();
        else if (turn == 2)
            book.context.save();
    }
    book.context.save();
    EXPECT_GT(rows.rowCount(), 10);
    EXPECT_EQ(rows.pages(), book.pages(request));

    book.context.setAutomaticallyMergesChangesFromParent(true);
    book.elsewhere("INSERT INTO Note (pages, isPinned) VALUES (1000, 1)");
    (void)book.context.count(request);
    QCoreApplication::processEvents();
    EXPECT_EQ(rows.pages().front(), 1000) << "another writer's record is not shown";
}

TEST(LiveFetch, OutlivesADeletionElsewhereBetweenTheMergeAndTheWriteOfASave) {
    (void)Notebook({{1}, {2}, {3}});
    Notebook book;
    QObject::connect(&book.context, &ManagedObjectContext::objectsDidChange,
                     [&] { book.elsewhere("DELETE FROM Note WHERE pages = 2"); });
    const FetchRequest request = notes({}, {{QStringLiteral("pages")}});
    const Rows rows(book.context, request);
    book.add({4});
    book.context.save();
    EXPECT_EQ(rows.pages(), (std::vector<std::int32_t>{1, 3, 4}));
    EXPECT_EQ(Notebook().pages(), rows.pages());
}

} // namespace
} // namespace kovamo
