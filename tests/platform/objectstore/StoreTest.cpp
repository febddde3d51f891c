#include "Note.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <SQLiteCpp/Database.h>

namespace kovamo {
namespace {

/// The description that loading fails with; empty when it does not.
QString failure() {
    PersistentContainer container(QStringLiteral("Notes"), Note::entity());
    QString description;
    container.loadPersistentStores([&](const StoreError* error) {
        if (error)
            description = error->description();
    });
    return description;
}

TEST(Store, KeepsEveryValueOverARestart) {
    const QString text =
        QStringLiteral("مرحبا <b>x</b>\n") + QChar(u'\0') + QChar(0x0301) + QString(1 << 20, u'x');
    const QUuid id = QUuid::createUuid();
    {
        Notebook book;
        Note& record = book.add({std::numeric_limits<std::int32_t>::min(), true});
        record.setTitle(text);
        record.setDue(at("1901-02-03 04:05:06.007"));
        record.setId(id);
        book.add({std::numeric_limits<std::int32_t>::max()}).setTitle({});
        book.context.save();
        const QFileInfo file(book.container.storePath());
        EXPECT_EQ((file.permissions() | QFileInfo(file.path()).permissions()) & 0x0077, 0);
    }
    const Notebook book;
    const auto all = book.all();
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0]->pages(), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(all[0]->title(), text);
    EXPECT_EQ(all[0]->due(), at("1901-02-03 04:05:06.007"));
    EXPECT_EQ(all[0]->id(), id);
    EXPECT_TRUE(all[0]->isPinned());
    EXPECT_EQ(all[1]->title(), std::nullopt);
}

TEST(Store, ShowsTheRowsOfAnotherProgram) {
    const Notebook book;
    book.elsewhere("INSERT INTO Note (pages, due, id) VALUES "
                   "(42, 1715767200000, '0b5a2a4e-7a3a-4c1e-9f52-0d8f6f0c9a11')");
    const Note& record = *book.all().at(0);
    EXPECT_EQ(record.pages(), 42);
    EXPECT_EQ(record.due(), at("2024-05-15 12:00"));
    EXPECT_EQ(record.id(), QUuid("0b5a2a4e-7a3a-4c1e-9f52-0d8f6f0c9a11"));
}

TEST(Store, RefusesWhatIsNotItsOwnAndLeavesItAlone) {
    const QString path = Notebook().container.storePath();
    const std::pair<const char*, const char*> cases[] = {
        {"PRAGMA user_version = 42", "newer version"},
        {"PRAGMA user_version = 0", "no store of the app"},
        {"PRAGMA user_version = 1; ALTER TABLE Note RENAME title TO x", "no such column"},
    };
    for (const auto& [sql, description] : cases) {
        SQLite::Database(path.toStdString(), SQLite::OPEN_READWRITE).exec(sql);
        const QByteArray before = content(path);
        EXPECT_TRUE(failure().contains(QLatin1String(description))) << sql;
        EXPECT_EQ(content(path), before) << sql;
    }
    QFile::remove(path + u"-seal");
    ASSERT_TRUE(QFile::resize(path, 0) && QFile::copy("/proc/self/exe", path + u"-wal"));
    EXPECT_EQ(failure(), u"The store has lost its content") << "what its log holds is left alone";
    ASSERT_TRUE(QFile::remove(path + u"-wal"));
    ASSERT_TRUE(QFile::remove(path) && QDir().mkpath(path));
    EXPECT_EQ(failure(), u"Is a directory");
    ASSERT_TRUE(QDir().rmdir(path));
    EXPECT_EQ(failure(), QString()) << "a missing store is made";
    ASSERT_TRUE(QFile::rename(path, path + u"-wal"));
    EXPECT_EQ(failure(), u"The store has lost its content") << "its log may hold what was saved";
    EXPECT_TRUE(QFile::exists(path + u"-wal"));
}

TEST(Store, SeesWhatChangesWhileOrAfterItIsReadAhead) {
    const World world;
    const QString path = Notebook({{1}}).container.storePath();
    const PersistentContainer container(QStringLiteral("Notes"), Note::entity());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    constexpr qint64 secondPage = 4096;
    const auto write = [&](char byte) {
        return file.seek(secondPage) && file.putChar(byte) && file.flush();
    };
    file.seek(secondPage);
    const char kind = file.peek(1).at(0);
    for (int round = 0; round < 60; ++round) {
        // The clock of files stands still for some milliseconds.
        ASSERT_TRUE(write(kind) && file.setFileTime(QDateTime::fromSecsSinceEpoch(0),
                                                    QFile::FileModificationTime));
        container.readAhead();
        EXPECT_EQ(failure(), QString());
        container.readAhead();
        for (int i = 0; i < round; ++i)
            static_cast<void>(content(path)); // meanwhile it is read, in the later rounds
        ASSERT_TRUE(write('x'));
        EXPECT_NE(failure(), QString()) << round;
    }
}

TEST(Store, RefusesAWrongValueInTheTableOfAnotherProgram) {
    const std::pair<const char*, const char*> cases[] = {
        {"pages = 'many'", "pages"},     {"pages = 3000000000", "pages"},
        {"isPinned = NULL", "isPinned"}, {"due = 1.5", "due"},
        {"title = x'00'", "title"},      {"id = 'none'", "id"},
    };
    for (const auto& [fault, attribute] : cases) {
        const World world;
        const Notebook book({{1}});
        const QString id = QString::number(book.all()[0]->objectID());
        book.elsewhere("CREATE TABLE copy AS SELECT * FROM Note;"
                       "DROP TABLE Note; ALTER TABLE copy RENAME TO Note");
        EXPECT_EQ(failure(), QString()) << "without a fault it is as good as the app's";
        book.elsewhere(std::string("UPDATE Note SET ") + fault);
        EXPECT_EQ(failure(), u"The record " + id + u" has a wrong " + QLatin1String(attribute));
    }
}

} // namespace
} // namespace kovamo
