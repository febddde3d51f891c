#include "FaultyDisk.h"
#include "editing/TransactionsView.h"
#include "model/PersistenceController.h"
#include "support/Book.h"

#include <QDir>
#include <csignal>
#include <gtest/gtest.h>

namespace kovamo {
namespace {

using Amounts = std::vector<std::int32_t>;

Transaction& record(const TransactionsView& all, int row) {
    return static_cast<Transaction&>(all.object(row));
}

Amounts stored() {
    const Book book({});
    const TransactionsView all(book.context);
    Amounts amounts;
    for (int row = 0; row < all.rowCount(); ++row)
        amounts.push_back(record(all, row).amount());
    return amounts;
}

void saveForm(ManagedObjectContext& context, Transaction* existing, const QString& amount) {
    AddTransactionView form(context, existing);
    form.setEmoji(QStringLiteral("☕"));
    form.setTitle(QString(9000, u'x'));
    form.setAmount(amount);
    form.save();
}

void add(TransactionsView&, ManagedObjectContext& context) {
    saveForm(context, nullptr, QStringLiteral("700"));
}

void edit(TransactionsView& all, ManagedObjectContext& context) {
    saveForm(context, &record(all, 1), QStringLiteral("200"));
}

void remove(TransactionsView& all, ManagedObjectContext&) {
    all.remove({0});
}

TEST(FailingDisk, StopsOverAFormAndPassesOverADeletion) {
    installFaultyDisk();
    const struct {
        void (*work)(TransactionsView&, ManagedObjectContext&);
        Amounts after;
        bool isFatal;
    } cases[] = {
        {add, {700, 500, 300}, true}, {edit, {500, 200}, true}, {remove, {300}, false}};
    const Amounts before{500, 300};
    int failures = 0;
    for (const auto& [work, after, isFatal] : cases)
        for (const Fault fault : {Fault::error, Fault::full})
            for (int call = 1, came = 1; came; ++call) {
                const World world("2024-05-15 10:00");
                (void)Book({{500}, {300}});
                const Ended ended = runForked([&] {
                    auto& context = PersistenceController::shared().container->viewContext();
                    TransactionsView all(context);
                    failDisk(fault, call);
                    work(all, context);
                    (void)std::fputs(context.hasChanges() ? "pending" : "saved", stderr);
                    (void)std::fputs(diskFailed() ? "" : " on a good disk", stderr);
                });
                came = ended.said.find("good disk") == std::string::npos;
                failures += came;
                const bool stopped = ended.said.starts_with("Fatal error: Unresolved error ");
                const bool saved = ended.said.starts_with("saved");
                EXPECT_EQ(ended.signal, stopped ? SIGABRT : 0) << ended.said;
                EXPECT_TRUE(saved || (isFatal ? stopped : ended.said == "pending")) << ended.said;
                const QDir folder(world.folder() + u"/xdg_data_home/Kovamo");
                EXPECT_EQ(folder.entryList({QStringLiteral("*-copy-*")}), QStringList());
                const Amounts found = stored();
                EXPECT_TRUE(found == after || (found == before && !saved))
                    << "call " << call << ": " << ended.said;
            }
    std::printf("%d calls failed\n", failures);
}

TEST(FailingDisk, KeepsWhatIsStoredWhenAStartFails) {
    installFaultyDisk();
    for (const bool isFresh : {true, false})
        for (const Fault fault : {Fault::error, Fault::full})
            for (int call = 1, came = 1; came; ++call) {
                const World world("2024-05-15 10:00");
                if (!isFresh) // left by a killed process, its log not merged
                    (void)runForked([] {
                        const Book book({{500}});
                        std::raise(SIGKILL);
                    });
                const Ended ended = runForked([&] {
                    failDisk(fault, call);
                    (void)PersistenceController::shared();
                    (void)std::fputs(diskFailed() ? "" : "good disk", stderr);
                });
                came = ended.said != "good disk";
                const bool stopped = ended.said.starts_with("Fatal error: Unresolved error ");
                EXPECT_EQ(ended.signal, stopped ? SIGABRT : 0) << ended.said;
                EXPECT_EQ(stored(), isFresh ? Amounts{} : Amounts{500}) << call;
            }
}

} // namespace
} // namespace kovamo
