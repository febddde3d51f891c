#include "FaultyDisk.h"
#include "editing/TransactionsView.h"
#include "ledger/TransactionContainer.h"
#include "model/PersistenceController.h"
#include "support/Book.h"

#include <QFile>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <csignal>
#include <gtest/gtest.h>
#include <random>

namespace kovamo {
namespace {

constexpr qsizetype page = 4096;

/// The records that a walk through the table itself finds.
std::vector<ObjectID> walked(const QString& path, const QString& conditionAndOrder) {
    const QString sql = u"SELECT pk FROM \"Transaction\" NOT INDEXED " + conditionAndOrder;
    SQLite::Database database(path.toStdString());
    SQLite::Statement statement(database, sql.toStdString());
    std::vector<ObjectID> ids;
    while (statement.executeStep())
        ids.push_back(statement.getColumn(0).getInt64());
    return ids;
}

/// Opens the store and looks at everything; whether all fetches agree with the table.
bool showsWhatIsThere() {
    const PersistentContainer& container = *PersistenceController::shared().container;
    ManagedObjectContext& context = container.viewContext();
    const Instant from = at("2024-05-01"), to = at("2025-05-01");
    const auto milliseconds = [](Instant instant) {
        return QString::number(instant.time_since_epoch().count());
    };
    const auto agrees = [&](const Predicate& predicate, std::vector<SortDescriptor> keys,
                            const QString& sql) {
        FetchRequest request = Transaction::fetchRequest();
        request.predicate = predicate;
        request.sortDescriptors = std::move(keys);
        return context.fetchIDs(request) == walked(container.storePath(), sql);
    };
    TransactionContainer year;
    year.fetchTransactions(3, context);
    const TransactionsView all(context);
    for (int row = 0; row < all.rowCount(); ++row)
        for (const int role : {TransactionsView::EmojiRole, TransactionsView::TitleRole})
            (void)all.data(all.index(row), role);
    return agrees({}, {}, QStringLiteral("ORDER BY pk")) &&
           agrees({}, {{QStringLiteral("amount"), false}},
                  QStringLiteral("ORDER BY amount DESC, pk")) &&
           agrees(Predicate(QStringLiteral("isRecurring == YES")), {},
                  QStringLiteral("WHERE isRecurring = 1 ORDER BY pk")) &&
           agrees(Predicate(QStringLiteral(
                                "startDate >= %@ AND startDate < %@ AND isRecurring == NO"),
                            {from, to}),
                  {},
                  u"WHERE startDate >= " + milliseconds(from) + u" AND startDate < " +
                      milliseconds(to) + u" AND isRecurring = 0 ORDER BY pk");
}

TEST(Damage, IsShownRightOrRefusedAndLeftAsItIs) {
    const World world("2024-05-15 10:00");
    std::mt19937 random(11);
    QString path;
    {
        Book book({});
        for (int i = 0; i < 400; ++i)
            book.add({static_cast<std::int32_t>(random() % 5000),
                      qPrintable(QStringLiteral("2024-%1-03").arg(random() % 24)),
                      i % 20 ? nullptr : "monthly"})
                .setTitle(QString(static_cast<int>(random() % 120), u'x'));
        book.context.save();
        path = book.container.storePath();
    }
    const auto content = [&] {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    const QByteArray good = content();
    ASSERT_GT(good.size(), 15 * page);
    int damaged = 0, refused = 0;
    const auto look = [&](const QByteArray& bytes, const QString& what) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        const Ended ended = runForked(
            [] { (void)std::fputs(showsWhatIsThere() ? "right" : "wrong", stderr); });
        const bool stopped = ended.signal == SIGABRT && ended.said.starts_with("Fatal error: ");
        EXPECT_TRUE(stopped || (ended.signal == 0 && ended.said == "right"))
            << what.toStdString() << ": signal " << ended.signal << ": " << ended.said;
        EXPECT_TRUE(content() == bytes) << what.toStdString() << " was written to";
        ++damaged;
        refused += stopped;
    };
    look(good, QStringLiteral("nothing"));
    ASSERT_EQ(refused, 0);
    for (qsizetype at = 0; at < good.size(); at += page) {
        QByteArray noise(page, '\0');
        std::ranges::generate(noise, [&] { return static_cast<char>(random()); });
        for (const QByteArray& over : {QByteArray(page, '\0'), QByteArray(page, '\xff'), noise})
            look(QByteArray(good).replace(at, page, over), QStringLiteral("page at %1").arg(at));
        look(good.first(at), QStringLiteral("cut at %1").arg(at));
        look(good.first(at + 100), QStringLiteral("cut behind %1").arg(at));
    }
    for (int round = 0; round < rounds(200); ++round) {
        QByteArray bytes = good;
        const auto at = static_cast<qsizetype>(random()) % (round % 4 ? good.size() : page);
        bytes[at] = static_cast<char>(bytes[at] ^ (1 << random() % 8));
        look(bytes, QStringLiteral("bit of byte %1").arg(at));
    }
    std::printf("%d files damaged, %d refused\n", damaged - 1, refused);
}

} // namespace
} // namespace kovamo
