#include "Ledger.h"

#include <QDir>
#include <QFile>
#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace kovamo {
namespace {

QByteArray bytes(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// The description that loading fails with; empty when it does not.
QString failure() {
    PersistentContainer container(QStringLiteral("Ledger"), Entry::entity());
    QString description;
    container.loadPersistentStores([&](const StoreError* error) {
        if (error)
            description = error->description();
    });
    return description;
}

unsigned mode(const QString& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.toLocal8Bit().constData(), &status), 0);
    return status.st_mode & 0777;
}

TEST(Store, KeepsEveryValueOverARestart) {
    const World world("2024-05-15 10:00");
    const QString text =
        QStringLiteral("مرحبا <b>x</b>\n") + QChar(u'\0') + QChar(0x0301) + QString(1 << 20, u'x');
    const QUuid id = QUuid::createUuid();
    {
        Ledger ledger;
        Entry& entry = ledger.add(std::numeric_limits<std::int32_t>::min(), text);
        entry.set(Entry::Day, at("1901-02-03 04:05:06.007"));
        entry.set(Entry::Id, id);
        entry.set(Entry::Flag, true);
        ledger.add(std::numeric_limits<std::int32_t>::max());
        ledger.context.save();
        EXPECT_EQ(mode(ledger.container.storePath()), 0600U);
        EXPECT_EQ(mode(QFileInfo(ledger.container.storePath()).path()), 0700U);
    }
    Ledger ledger;
    const auto all = ledger.context.fetch<Entry>(entries());
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0]->amount(), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(all[0]->at(Entry::Note), Value(text));
    EXPECT_EQ(all[0]->at(Entry::Day), Value(at("1901-02-03 04:05:06.007")));
    EXPECT_EQ(all[0]->at(Entry::Id), Value(id));
    EXPECT_EQ(all[0]->at(Entry::Flag), Value(true));
    EXPECT_TRUE(isAbsent(all[1]->at(Entry::Note)));
}

TEST(Store, ShowsTheRowsOfAnotherProgram) {
    const World world("2024-05-15 10:00");
    const QString path = Ledger().container.storePath();
    SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE)
        .exec("INSERT INTO \"Entry\" (\"amount\", \"note\", \"day\", \"id\", \"flag\") VALUES "
              "(42, 'tea', 1715767200000, '0b5a2a4e-7a3a-4c1e-9f52-0d8f6f0c9a11', 1)");
    Ledger ledger;
    const Entry* entry = ledger.context.fetch<Entry>(entries()).at(0);
    EXPECT_EQ(entry->at(Entry::Note), Value(QStringLiteral("tea")));
    EXPECT_EQ(entry->at(Entry::Day), Value(at("2024-05-15 12:00")));
    EXPECT_EQ(entry->at(Entry::Id), Value(QUuid("0b5a2a4e-7a3a-4c1e-9f52-0d8f6f0c9a11")));
}

TEST(Store, RefusesWhatIsNotItsOwnAndLeavesItAlone) {
    const World world("2024-05-15 10:00");
    const QString path = Ledger().container.storePath();
    const std::pair<const char*, const char*> cases[] = {
        {"PRAGMA user_version = 42", "newer version"},
        {"PRAGMA user_version = 0", "no store of the app"},
        {"PRAGMA user_version = 1; ALTER TABLE Entry RENAME note TO word", "no such column"},
    };
    for (const auto& [sql, description] : cases) {
        SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE).exec(sql);
        const QByteArray before = bytes(path);
        EXPECT_TRUE(failure().contains(QLatin1String(description))) << sql;
        EXPECT_EQ(bytes(path), before) << sql;
    }
    ASSERT_TRUE(QFile::remove(path) && QDir().mkpath(path));
    EXPECT_EQ(failure(), u"Is a directory");
    ASSERT_TRUE(QDir().rmdir(path));
    EXPECT_EQ(failure(), QString()) << "a missing store is made";
}

} // namespace
} // namespace kovamo
