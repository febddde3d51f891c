#include "FaultyDisk.h"
#include "model/PersistenceController.h"
#include "support/Book.h"
#include "support/FastQueue.h"

#include <QDir>
#include <SQLiteCpp/Database.h>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kovamo {
namespace {

class StoreCopy : public testing::Test {
  protected:
    /// The days whose copies are kept, each with the number of records in its copy.
    [[nodiscard]] std::string kept() const {
        std::string days;
        for (const QFileInfo& file :
             folder().entryInfoList({QStringLiteral("Kovamo-*")}, QDir::Files, QDir::Name)) {
            EXPECT_EQ(file.permissions() & (QFile::ReadGroup | QFile::ReadOther), 0);
            SQLite::Database copy(file.filePath().toStdString());
            days += file.fileName().mid(15, 2).toStdString() + ":" +
                    copy.execAndGet("SELECT count(*) FROM \"Transaction\"").getString() + " ";
        }
        return days;
    }
    [[nodiscard]] QDir folder() const { return {world.folder() + u"/xdg_data_home/Kovamo"}; }

    World world{"2024-05-15 10:00"};
};

TEST_F(StoreCopy, IsKeptBeforeTheFirstWriteForTheNewestThreeDays) {
    {
        Book book({{1}, {2}});
        book.add({3});
        book.context.save();
        EXPECT_EQ(kept(), "") << "nothing was stored before";
    }
    (void)Book({}).context.count(Transaction::fetchRequest());
    EXPECT_EQ(kept(), "") << "looking writes nothing";
    (void)Book({{4}});
    EXPECT_EQ(kept(), "15:3 ");
    (void)Book({{5}});
    EXPECT_EQ(kept(), "15:4 ") << "a day's newest takes the place of the one before";
    Book book({{6}});
    for (const char* day : {"2024-05-16 00:01", "2024-05-17", "2024-05-18"}) {
        world.setTime(day);
        book.add({1});
        book.add({1});
        book.context.save();
    }
    EXPECT_EQ(kept(), "16:6 17:8 18:10 ") << "a run that lasts for days";
}

TEST_F(StoreCopy, IsMadeAheadInStepsAndHoldsWhatStoodBeforeTheWrite) {
    {
        Book book({});
        for (int i = 0; i < 100; ++i)
            book.add({1}).setTitle(QString(9000, u'x'));
        book.context.save();
    }
    FastQueue queue;
    Book book({});
    book.context.prepareToSave();
    queue.advance(std::chrono::milliseconds(5));
    EXPECT_EQ(kept(), "") << "there is more to copy than one step takes";
    book.elsewhere("DELETE FROM \"Transaction\" WHERE pk > 90");
    while (!queue.empty())
        queue.advance(std::chrono::milliseconds(5));
    EXPECT_EQ(kept(), "15:90 ");
    book.add({1});
    book.context.save();
    EXPECT_EQ(kept(), "15:90 ");
}

TEST_F(StoreCopy, IsNamedByTheMessageOfADamagedStore) {
    const QString path = Book({{1}}).container.storePath();
    (void)Book({{2}});
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const Ended ended = runForked([] { (void)PersistenceController::shared(); });
    EXPECT_EQ(ended.signal, SIGABRT);
    const std::string copy = folder().filePath(QStringLiteral("Kovamo-2024-05-15.sqlite")).toStdString();
    EXPECT_TRUE(ended.said.starts_with("Fatal error: Unresolved error The store has lost")) << ended.said;
    EXPECT_TRUE(ended.said.ends_with("]\nThe newest copy of the store is " + copy + "\n")) << ended.said;
    file.remove();
    ASSERT_TRUE(QFile::copy(QString::fromStdString(copy), path));
    EXPECT_EQ(Book({}).context.count(Transaction::fetchRequest()), 1U);
}

TEST_F(StoreCopy, TwoProcessesWriteToOneStore) {
    constexpr int records = 60;
    const auto addMany = [] {
        Book book({});
        for (int i = 0; i < records; ++i) {
            book.add({i});
            book.context.save();
        }
    };
    const Ended outer = runForked([&] {
        const pid_t other = ::fork();
        addMany();
        ::waitpid(other, nullptr, 0);
    });
    EXPECT_EQ(outer.signal, 0) << outer.said;
    EXPECT_EQ(outer.said, "");
    EXPECT_EQ(Book({}).context.count(Transaction::fetchRequest()), 2U * records);
}

} // namespace
} // namespace kovamo
