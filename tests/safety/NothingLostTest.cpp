#include "FaultyDisk.h"
#include "editing/TransactionsView.h"
#include "ledger/TransactionContainer.h"
#include "model/PersistenceController.h"
#include "platform/objectstore/file/KeptCopies.h"
#include "platform/objectstore/store/BulkWrite.h"
#include "support/Book.h"
#include "support/FastQueue.h"

#include <QCoreApplication>
#include <QDir>
#include <QTimer>
#include <QTimerEvent>
#include <SQLiteCpp/Database.h>
#include <random>
#include <sys/socket.h>

namespace kovamo {
namespace {

using Amounts = std::vector<std::int32_t>;

/// How many rounds a test goes: `few`, or as many as the environment says.
int rounds(int few) {
    const QByteArray many = qgetenv("KOVAMO_ROUNDS");
    return many.isEmpty() ? few : many.toInt();
}

/// The text that goes with an amount, so that half a record would show.
QString titleOf(std::int32_t amount) {
    return QString(amount, u'x');
}

/// What a next start finds, in the order in which it was added.
Amounts stored() {
    const Book book;
    for (const Transaction* transaction : book.all())
        EXPECT_EQ(transaction->title(), titleOf(transaction->amount()));
    return book.amounts();
}

void addAndSave(Book& book, const Amounts& amounts) {
    for (const std::int32_t amount : amounts)
        book.add({amount}).setTitle(titleOf(amount));
    book.context.save();
}

/// Makes a few random changes in one save, to `amounts` and, if there is one, to `book`.
void change(std::mt19937& random, Amounts& amounts, Book* book) {
    for (auto changes = 1 + random() % 3; changes > 0; --changes) {
        const auto amount = static_cast<std::int32_t>(random() % 3000);
        const auto at = std::min<std::size_t>(random() % 60, amounts.size());
        const bool isNew = at == amounts.size(), goes = !isNew && random() % 4 == 0;
        if (book) {
            Transaction& record = isNew ? book->add({}) : *book->all()[at];
            record.setAmount(amount);
            record.setTitle(titleOf(amount));
            if (goes)
                book->context.deleteObject(record);
        }
        amounts.resize(std::max(amounts.size(), at + 1));
        amounts[at] = amount;
        if (goes)
            amounts.erase(amounts.begin() + static_cast<std::ptrdiff_t>(at));
    }
    if (book)
        book->context.save();
}

void saveForm(ManagedObjectContext& context, ManagedObject* existing, std::int32_t amount) {
    AddTransactionView form(context, static_cast<Transaction*>(existing));
    form.setEmoji(QStringLiteral("☕"));
    form.setTitle(titleOf(amount));
    form.setAmount(QString::number(amount));
    form.save();
}

/// Opens the store and looks at everything; whether the indexes agree with the table itself, which
/// a condition that no index knows makes the store walk.
bool showsWhatIsThere() {
    auto& context = PersistenceController::shared().container->viewContext();
    TransactionContainer().fetchTransactions(3, context);
    const TransactionsView list(context);
    Amounts listed;
    for (int row = 0; row < list.rowCount(); ++row) {
        (void)list.data(list.index(row), TransactionsView::LineRole);
        listed.push_back(static_cast<Transaction&>(list.object(row)).amount());
    }
    const auto fetched = [&](const Predicate& predicate) {
        return context.fetch<Transaction>(transactions(predicate));
    };
    auto table = fetched(Predicate(QStringLiteral("title != %@"), {QStringLiteral("?")}));
    const bool isListed = listed.size() == table.size();
    const Predicate year(QStringLiteral("startDate >= %@ AND startDate < %@ AND isRecurring == NO"),
                         {at("2024-05-01"), at("2025-05-01")});
    std::erase_if(table, [&](const Transaction* transaction) {
        return !year.matches(Transaction::entity(), transaction->values());
    });
    return isListed && std::ranges::is_sorted(listed, std::greater()) && fetched(year) == table;
}

class NothingLost : public testing::Test {
  protected:
    NothingLost() { FaultyDisk::fail(SQLITE_OK, 0); }

    /// The days whose copies are kept, each with the number of records in its copy.
    [[nodiscard]] std::string kept() const {
        std::string days;
        for (const QFileInfo& file : folder.entryInfoList({QStringLiteral("Kovamo-*.sqlite")})) {
            EXPECT_FALSE(file.permission(QFile::ReadGroup) || file.permission(QFile::ReadOther));
            SQLite::Database copy(file.filePath().toStdString());
            days += file.fileName().mid(15, 2).toStdString() + ":" +
                    copy.execAndGet("SELECT count(*) FROM \"Transaction\"").getString() + " ";
        }
        return days;
    }

    QDir folder{World::folder() + u"/xdg_data_home/Kovamo"};
    QFile store{folder.filePath(QStringLiteral("Kovamo.sqlite"))};
};

TEST_F(NothingLost, WhenKilledAtEveryCallAndAtAnyMoment) {
    const int stride = rounds(60) < 500 ? 9 : 1;
    Amounts amounts;
    int call = 1, kills = 0;
    for (unsigned round = 0; kills < rounds(60); ++round) {
        const bool atCall = round % 2 == 0;
        World::setTime(qPrintable(QStringLiteral("2024-05-%1").arg(10 + round % 7)));
        const Fork worker([&] {
            std::mt19937 random(round);
            std::signal(SIGALRM, [](int) { std::raise(SIGKILL); });
            FaultyDisk::fail(FaultyDisk::kill, atCall ? call : 0);
            if (!atCall)
                ::ualarm(static_cast<unsigned>(random()) % (1U << (10 + round % 7)), 0);
            random.seed(round);
            Book book;
            for (int save = 0; save < 12; ++save) {
                change(random, amounts, &book);
                std::fputc('.', stderr);
            }
        });
        ASSERT_EQ(worker.said, std::string(worker.said.size(), '.')) << "round " << round;
        kills += worker.signal == SIGKILL;
        if (atCall)
            call = worker.signal == SIGKILL ? call + stride : 1;
        std::mt19937 random(round);
        for (std::size_t save = 0; save < worker.said.size(); ++save)
            change(random, amounts, nullptr);
        Amounts inFlight = amounts;
        change(random, inFlight, nullptr);
        const QString log = store.fileName() + u"-wal";
        const QByteArray left = QFile::exists(log) ? content(log) : QByteArray();
        const Amounts found = stored();
        ASSERT_TRUE(found == amounts || found == inFlight) << "round " << round;
        ASSERT_TRUE(left.isEmpty() || content(log) == left) << "looking wrote to the store";
        amounts = found;
        for (const QString& file : folder.entryList({QStringLiteral("*.sqlite")})) {
            SQLite::Database database(folder.filePath(file).toStdString());
            ASSERT_EQ(database.execAndGet("PRAGMA integrity_check").getString(), "ok") << round;
        }
    }
}

TEST_F(NothingLost, WhenAnyCallFails) {
    const struct {
        void (*work)(TransactionsView& all, ManagedObjectContext& context);
        Amounts after;
        bool isFatal = true;
    } cases[] = {
        {nullptr, {500, 300}}, // a start
        {[](auto&, auto& context) { saveForm(context, nullptr, 700); }, {500, 300, 700}},
        {[](auto& list, auto& context) { saveForm(context, &list.object(1), 200); }, {500, 200}},
        {[](auto& list, auto&) { list.remove({0}); }, {300}, false},
    };
    for (const auto& [work, after, isFatal] : cases)
        for (const int code : {SQLITE_IOERR, SQLITE_FULL})
            for (int call = 1, came = 1; came; ++call) {
                folder.removeRecursively();
                (void)Fork([] {
                    Book book;
                    addAndSave(book, {500, 300});
                    std::raise(SIGKILL); // its log is left
                });
                const Fork app([&, work = work] {
                    FaultyDisk::fail(work ? SQLITE_OK : code, call);
                    auto& context = PersistenceController::shared().container->viewContext();
                    TransactionsView list(context);
                    if (work) {
                        FaultyDisk::fail(code, call);
                        work(list, context);
                    }
                    std::fputs(context.hasChanges() ? "pending" : "saved", stderr);
                    std::fputs(FaultyDisk::hasFailed() ? "" : ", nothing failed", stderr);
                });
                came = app.said != "saved, nothing failed";
                const bool stopped = app.said.starts_with("Fatal error: Unresolved error ");
                const bool saved = app.said.starts_with("saved");
                EXPECT_EQ(app.signal, stopped ? SIGABRT : 0) << app.said;
                EXPECT_TRUE(saved || (isFatal ? stopped : app.said == "pending")) << app.said;
                const auto files = QDir::Files | QDir::Hidden;
                EXPECT_TRUE(folder.entryList({QStringLiteral("*-copy-*")}, files).isEmpty());
                const Amounts found = stored();
                EXPECT_TRUE(found == after || (found == Amounts{500, 300} && !saved)) << app.said;
            }
}

TEST_F(NothingLost, WhenTheFileIsDamaged) {
    std::mt19937 random(11);
    {
        Book book;
        for (int i = 0; i < 400; ++i)
            book.add({static_cast<std::int32_t>(random() % 5000),
                      qPrintable(QStringLiteral("2024-%1-03").arg(random() % 24)),
                      i % 20 ? nullptr : "monthly"})
                .setTitle(titleOf(static_cast<std::int32_t>(random() % 120)));
        book.context.save();
    }
    const QByteArray good = content(store.fileName());
    const auto isRefused = [&](const QByteArray& bytes) {
        EXPECT_TRUE(store.open(QIODevice::WriteOnly));
        store.write(bytes);
        store.close();
        const Fork app([] { std::fputs(showsWhatIsThere() ? "right" : "wrong", stderr); });
        EXPECT_TRUE(content(store.fileName()) == bytes) << "it was written to";
        const bool stopped = app.signal == SIGABRT && app.said.starts_with("Fatal error: ");
        EXPECT_TRUE(stopped || (app.signal == 0 && app.said == "right")) << app.signal << app.said;
        return stopped;
    };
    EXPECT_FALSE(isRefused(good));
    constexpr qsizetype page = 4096;
    for (qsizetype at = 0; at < good.size(); at += page) {
        SCOPED_TRACE(at);
        QByteArray noise(page, '\0');
        std::ranges::generate(noise, [&] { return static_cast<char>(random()); });
        for (const QByteArray& over : {QByteArray(page, '\0'), QByteArray(page, '\xff'), noise})
            EXPECT_TRUE(isRefused(QByteArray(good).replace(at, page, over)));
        EXPECT_TRUE(isRefused(good.first(at)) && isRefused(good.first(at + 100)));
    }
    for (int round = 0; round < rounds(100); ++round) {
        const auto at = static_cast<qsizetype>(random()) % (round % 4 ? good.size() : page);
        SCOPED_TRACE(at);
        QByteArray bytes = good;
        bytes[at] = static_cast<char>(bytes[at] ^ (1 << random() % 8));
        (void)isRefused(bytes);
    }
}

TEST_F(NothingLost, WhenTwoProcessesWrite) {
    for (int round = 0; round < rounds(20); ++round) {
        ASSERT_TRUE(folder.removeRecursively());
        const Fork both([] {
            int ends[2];
            if (::socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0)
                return;
            const pid_t other = ::fork();
            const int end = ends[other == 0];
            ::close(ends[other != 0]);
            for (int visit = 0; visit < 3; ++visit) {
                Book book;
                // The first save changes the store's mode, the first end takes its log away: both
                // begin at once.
                char byte = 0;
                if (::write(end, &byte, 1) != 1 || ::read(end, &byte, 1) != 1)
                    return;
                for (int i = 0; i < 5; ++i)
                    addAndSave(book, {i});
            }
            ::waitpid(other, nullptr, 0);
        });
        EXPECT_EQ(both.said, "");
        EXPECT_EQ(stored().size(), 30U);
    }
}

TEST_F(NothingLost, WhileAnImportTakesItsTime) {
    Book book({{5}});
    Store other(store.fileName(), Transaction::entity());
    auto import = std::make_optional<BulkWrite>(other);
    import->insert(book.all()[0]->values());
    int pauses = 0;
    FaultyDisk::sleep = [&](int microseconds) {
        if (++pauses == 60'000'000 / microseconds)
            import->commit(), import.reset();
        return microseconds;
    };
    addAndSave(book, {7});
    EXPECT_FALSE(import) << "the save has waited for a minute";
    EXPECT_EQ(book.amounts(), (Amounts{5, 5, 7}));

    pauses = 0;
    SQLite::Database stranger(store.fileName().toStdString(), SQLite::OPEN_READWRITE);
    stranger.exec("BEGIN IMMEDIATE");
    EXPECT_THROW(addAndSave(book, {9}), StoreError) << "not everybody is waited for";
    EXPECT_LT(pauses, 10000);
    FaultyDisk::sleep = {};
}

TEST_F(NothingLost, WhenTheFileIsReplaced) {
    const QString path = store.fileName(), backup = folder.filePath(QStringLiteral("backup")),
                  away = folder.filePath(QStringLiteral("away"));
    const struct {
        std::function<void()> replace;
        Amounts seen, after;
    } cases[] = {
        {[&] { (void)(QFile::rename(path, away) && QFile::copy(backup, path)); },
         {1, 2, 9},
         {2, 4, 9, 10, 30}},
        {[&] { std::rename(qPrintable(backup), qPrintable(path)); }, {1, 2, 9}, {2, 4, 9, 10, 30}},
        {[&] { (void)goBackTo(backup, path); }, {1, 2, 9}, {2, 4, 9, 10, 30}},
        {[&] { folder.removeRecursively(); }, {1, 2, 3}, {4, 10, 30}},
        {[&] { (void)QFile::rename(path, away); }, {1, 2, 3}, {4, 10, 30}},
    };
    for (const auto& [replace, seen, after] : cases) {
        SCOPED_TRACE(&replace - &cases[0].replace);
        folder.removeRecursively();
        {
            Book book;
            addAndSave(book, {1, 2});
        }
        ASSERT_TRUE(QFile::copy(path, backup));
        {
            Book book;
            book.context.setAutomaticallyMergesChangesFromParent(true);
            addAndSave(book, {3});
            const auto all = book.all();
            SQLite::Database(backup.toStdString(), SQLite::OPEN_READWRITE)
                .exec("INSERT INTO \"Transaction\" (pk, amount, title) VALUES (" +
                      std::to_string(all[2]->objectID()) + ", 9, 'xxxxxxxxx')");
            replace();
            EXPECT_EQ(book.amounts(), seen);
            saveForm(book.context, all[2], 30);
            saveForm(book.context, all[0], 10);
            saveForm(book.context, nullptr, 4);
            EXPECT_EQ(all[2]->amount(), 30);
        }
        Amounts found = stored();
        std::ranges::sort(found);
        EXPECT_EQ(found, after);
        if (QFile::exists(away)) {
            SQLite::Database former(away.toStdString());
            EXPECT_EQ(former.execAndGet("SELECT sum(amount) FROM \"Transaction\"").getInt(), 6);
        }
    }
}

TEST_F(NothingLost, WhenAnUnreadableFileTakesItsPlace) {
    Book book({{5}});
    book.context.setAutomaticallyMergesChangesFromParent(true);
    const QString away = folder.filePath(QStringLiteral("away"));
    ASSERT_TRUE(QFile::rename(store.fileName(), away) && store.open(QIODevice::WriteOnly));
    store.write(QByteArray(8192, 'x'));
    store.close();
    EXPECT_EQ(book.amounts(), Amounts{5}) << "it may be on its way";
    book.add({7}).setTitle(titleOf(7));
    EXPECT_THROW(book.context.save(), StoreError);
    ASSERT_TRUE(store.remove() && QFile::rename(away, store.fileName()));
    book.context.save();
    EXPECT_EQ(Book().amounts(), (Amounts{5, 7}));
}

TEST_F(NothingLost, WhileTheStateBeforeTheFirstWriteIsKeptForThreeDays) {
    {
        Book book;
        addAndSave(book, {1, 2});
        addAndSave(book, {3});
    }
    (void)stored();
    EXPECT_EQ(kept(), "") << "at first there is nothing to keep, and looking writes nothing";
    for (const char* expected : {"15:3 ", "15:4 "}) {
        Book book;
        addAndSave(book, {4});
        EXPECT_EQ(kept(), expected) << "a day's newest takes the place of the one before";
    }
    for (const char* own :
         {"Kovamo-my-own-copy.sqlite", "Kovamo-2019-01-01.sqlite", "Kovamo.sqlite-copy-1"})
        ASSERT_TRUE(store.copy(folder.filePath(QLatin1String(own))));
    for (Book book; const char* day :
                    {"2024-05-16 00:01", "2024-05-17", "2024-05-18", "2031-05-01", "2024-05-19"}) {
        World::setTime(day);
        addAndSave(book, {6});
        addAndSave(book, {7});
    }
    EXPECT_EQ(kept(), "01:5 17:7 18:9 19:13 01:11 op:5 ") << "the clock was ahead once";
    EXPECT_TRUE(QFile::exists(store.fileName() + u"-copy-1")) << "it is the user's";

    ASSERT_TRUE(store.open(QIODevice::WriteOnly));
    const Fork app([] { (void)PersistenceController::shared(); });
    const QString copy = folder.filePath(QStringLiteral("Kovamo-2024-05-19.sqlite"));
    EXPECT_TRUE(app.said.starts_with("Fatal error: Unresolved error The store has lost"))
        << app.said;
    EXPECT_TRUE(
        app.said.ends_with("]\nThe newest copy of the store is " + copy.toStdString() + "\n"))
        << app.said;
    ASSERT_TRUE(store.remove() && QFile::copy(copy, store.fileName()));
    EXPECT_EQ(stored().size(), 13U);

    ASSERT_TRUE(store.remove());
    for (Book book; const char* day : {"2024-05-20", "2024-05-21", "2024-05-22", "2024-05-23"}) {
        World::setTime(day);
        addAndSave(book, {6});
        addAndSave(book, {7});
    }
    EXPECT_EQ(kept(), "01:5 17:7 18:9 19:13 21:2 22:4 23:6 01:11 op:5 ")
        << "another store's copies go before those of this one";
    SQLite::Database lock(store.fileName().toStdString(), SQLite::OPEN_READWRITE);
    lock.exec("PRAGMA user_version = 11");
    EXPECT_EQ(Fork([] { (void)PersistenceController::shared(); }).said.find("newest copy"),
              std::string::npos)
        << "a healthy store needs no copy";
}

TEST_F(NothingLost, WhenTheCopyIsMadeAheadInSteps) {
    FastQueue queue;
    Book book;
    addAndSave(book, Amounts(100, 9000));
    World::setTime("2024-05-16");
    book.context.prepareToSave();
    queue.advance(std::chrono::milliseconds(5));
    EXPECT_EQ(kept(), "") << "there is more to copy than one step takes";
    const char* const deletion =
        "DELETE FROM \"Transaction\" WHERE rowid IN (SELECT max(pk) FROM \"Transaction\")";
    book.elsewhere(deletion);
    while (!queue.empty())
        queue.advance(std::chrono::milliseconds(5));
    EXPECT_EQ(kept(), "") << "nothing is written yet: an earlier copy may be the better one";
    book.elsewhere(deletion);
    addAndSave(book, {1});
    EXPECT_EQ(kept(), "16:98 ");
}

// The last one: it opens the one store of the process, which a test after it could not open anew.
TEST_F(NothingLost, AndWhatAnotherProcessSavesIsSeen) {
    const Book other({{5}});
    auto& context = PersistenceController::shared().container->viewContext();
    const Transaction* record = context.fetch<Transaction>(transactions()).front();
    EXPECT_EQ(record->amount(), 5);
    other.elsewhere("UPDATE \"Transaction\" SET amount = 7");
    auto* timer = context.findChild<QTimer*>();
    ASSERT_TRUE(timer && timer->isActive() && timer->interval() <= 1000);
    QTimerEvent second(timer->timerId());
    QCoreApplication::sendEvent(timer, &second);
    EXPECT_EQ(record->amount(), 7);
}

} // namespace
} // namespace kovamo
