#include "FaultyDisk.h"
#include "support/Book.h"

#include <QDir>
#include <SQLiteCpp/Database.h>
#include <csignal>
#include <gtest/gtest.h>
#include <random>
#include <unistd.h>

namespace kovamo {
namespace {

/// Amounts and titles in the order in which they were added.
using Records = std::vector<std::pair<std::int32_t, std::optional<QString>>>;

std::vector<Transaction*> all(Book& book) {
    return book.context.fetch<Transaction>(Transaction::fetchRequest());
}

Records stored() {
    Book book({});
    Records records;
    for (const Transaction* transaction : all(book))
        records.emplace_back(transaction->amount(), transaction->title());
    return records;
}

/// Makes a few random changes in one save: always to `records`, and to `book` if there is one.
void change(std::mt19937& random, Records& records, Book* book) {
    for (auto changes = 1 + random() % 3; changes > 0; --changes) {
        const std::pair record{static_cast<std::int32_t>(random() % 1000),
                               QString(static_cast<int>(random() % 3000), u'x')};
        const std::size_t at = random() % (records.size() + 1);
        Transaction* transaction = nullptr;
        if (records.size() < 10 || (at < 80 && random() % 2 == 0)) {
            records.emplace_back(record);
            transaction = book ? &book->add({}) : nullptr;
        } else if (at < records.size()) {
            transaction = book ? all(*book)[at] : nullptr;
            if (random() % 2 == 0) {
                records.erase(records.begin() + static_cast<std::ptrdiff_t>(at));
                if (book)
                    book->context.deleteObject(*transaction);
                continue;
            }
            records[at] = record;
        }
        if (transaction) {
            transaction->setAmount(record.first);
            transaction->setTitle(record.second);
        }
    }
    if (book)
        book->context.save();
}

TEST(Crash, LosesNoSaveThatHadReturned) {
    World world("2024-05-15 10:00");
    installFaultyDisk();
    Records records;
    const int stride = rounds(60) < 500 ? 9 : 1;
    int call = 1, kills = 0, saves = 0;
    for (int round = 0; kills < rounds(60); ++round) {
        const bool atCall = round % 2 == 0;
        const auto seed = static_cast<unsigned>(round);
        world.setTime(qPrintable(QStringLiteral("2024-05-%1").arg(10 + round % 7)));
        const Ended ended = runForked([&] {
            std::mt19937 random(seed);
            if (atCall)
                failDisk(Fault::kill, call);
            std::signal(SIGALRM, [](int) { std::raise(SIGKILL); });
            if (!atCall)
                ::ualarm(static_cast<useconds_t>(1 + random() % (1U << (10 + random() % 7))), 0);
            random.seed(seed);
            Book book({});
            for (int save = 0; save < 12; ++save) {
                change(random, records, &book);
                (void)::write(STDERR_FILENO, ".", 1);
            }
        });
        call = ended.signal == SIGKILL ? call + atCall * stride : 1;
        kills += ended.signal == SIGKILL;
        saves += static_cast<int>(ended.said.size());
        ASSERT_EQ(ended.said, std::string(ended.said.size(), '.')) << "round " << round;

        std::mt19937 random(seed);
        for (std::size_t save = 0; save < ended.said.size(); ++save)
            change(random, records, nullptr);
        const Records returned = records;
        change(random, records, nullptr);
        const Records found = stored();
        ASSERT_TRUE(found == returned || found == records) << "round " << round;
        records = found;
        const QDir folder(world.folder() + u"/xdg_data_home/Kovamo");
        for (const QString& file : folder.entryList({QStringLiteral("*.sqlite")}))
            ASSERT_EQ(SQLite::Database(folder.filePath(file).toStdString())
                          .execAndGet("PRAGMA integrity_check")
                          .getString(),
                      "ok")
                << file.toStdString();
    }
    std::printf("%d kills, %d saves\n", kills, saves);
}

} // namespace
} // namespace kovamo
