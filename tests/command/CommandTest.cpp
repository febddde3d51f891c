#include "support/Book.h"

#include <QDir>
#include <QProcess>

namespace kovamo {
namespace {

/// Runs a command of the app as a process, without a window system.
struct Ended : QProcess {
    explicit Ended(const QString& words, const QByteArray& input = {}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("nowhere"));
        setProcessEnvironment(environment);
        start(QStringLiteral(KOVAMO_EXECUTABLE), splitCommand(words));
        write(input);
        closeWriteChannel();
        EXPECT_TRUE(waitForFinished(600000));
        EXPECT_EQ(exitStatus(), NormalExit) << words.toStdString();
        output = readAllStandardOutput();
        errors = readAllStandardError();
        // Qt 6.8 remarks on a locale that the system has not got.
        if (errors.startsWith("Detected locale"))
            errors.clear();
    }
    QByteArray output, errors;
};

/// Everything in the folder of the store: names and contents.
QMap<QString, QByteArray> filesBeside(const QString& path) {
    QMap<QString, QByteArray> files;
    for (const QFileInfo& file : QFileInfo(path).dir().entryInfoList(QDir::Files))
        files.insert(file.fileName(), content(file.filePath()));
    return files;
}

TEST(Command, AnswersEachCall) {
    // What recurs is in every month, whatever today is.
    const QString path = Book({{100, "2001-01-05", "monthly", "2100-01-05"},
                               {30, "2001-01-05", "monthly", "2100-01-05", false},
                               {7, "1999-01-01"}})
                             .container.storePath();
    const auto before = filesBeside(path);
    const struct {
        const char* words;
        int status;
        const char* output;
        const char* errors = "";
    } calls[] = {
        {"balance", 0, "Your Kovamo is positive 👍\n+ $70\n"},
        {"balance --frame 12", 0, "Your Kovamo is positive 👍\n+ $840\n"},
        {"balance --frame 3 --format json", 0, "\"balance\":210,"},
        {"balance --frame 4", 2, "", "The frame is current, 3 or 12, not \"4\""},
        {"balance --format csv", 2, "", "The format is text or json"},
        {"balance --frob", 2, "", "Unknown option 'frob'"},
        {"balance all", 2, "", "Not understood: all"},
        {"balance --store nowhere.sqlite", 1, "", "nowhere.sqlite: There is no store"},
        {"balance --store /dev/null", 1, "", "There is no store"},
        {"balance --help", 0, "Usage: kovamo balance [options]\n"},
        {"list --frame 12", 0,
         "2001-01-05  + $1,200  🙂 title (monthly)\n2001-01-05    - $360  🙂 title "
         "(monthly)\n"},
        {"list --frame 12 --format json", 0, "\"amount\":1200,"},
        {"list --format csv", 0, ",30,spending,monthly,"},
        {"export --frame 12", 0, ",100,earning,monthly,"},
        {"export -", 0, ",7,earning,,"},
        {"export /dev/full", 1, "", "/dev/full cannot be written: No space left on device"},
        {"export --format xml", 2, "", "The format is csv, json or ledger"},
        {"import nowhere.csv", 1, "", "nowhere.csv cannot be read: No such file"},
        {"import --dry-run", 1, "", "Standard input:1: The file is empty"},
        {"import --columns day=Tag", 2, "", "not \"day=Tag\""},
        {"restore", 2, "", "COPY is missing"},
        {"--help", 0, "kovamo balance   "},
    };
    for (const auto& call : calls) {
        const Ended run(QString::fromUtf8(call.words));
        EXPECT_EQ(run.exitCode(), call.status) << call.words;
        EXPECT_TRUE(run.output.contains(call.output)) << call.words << '\n' << run.output.data();
        EXPECT_TRUE(run.errors.contains(call.errors)) << call.words << '\n' << run.errors.data();
        EXPECT_EQ(run.errors.isEmpty(), call.status == 0) << call.words << run.errors.data();
    }
    EXPECT_EQ(filesBeside(path), before) << "they only read";
}

TEST(Command, SaysWhatItCannotSumUp) {
    const Book book({{2'000'000'000, "2001-01-05", "monthly", "2100-01-05"}});
    const Ended run(QStringLiteral("balance --frame 12"));
    EXPECT_EQ(run.exitCode(), 1);
    EXPECT_TRUE(run.errors.startsWith("Fatal error: Arithmetic overflow")) << run.errors.data();
}

TEST(Import, TakesInWhatWasExportedAndNothingOfABadFile) {
    const Book book({{100}, {30, "2001-01-05", "monthly", "2100-01-05", false}});
    const QString folder = World::folder();
    const QString other = QStringLiteral("--store ") + folder + u"/other/store.sqlite";
    for (const char* format : {"csv", "json"}) {
        const QString file = folder + u"/records." + QLatin1String(format);
        EXPECT_EQ(Ended(QStringLiteral("export ") + file).exitCode(), 0);
        const Ended printed(u"export --format " + QLatin1String(format));
        EXPECT_EQ(printed.output, content(file));
        EXPECT_EQ(Ended(u"import --dry-run " + other, content(file)).output.left(5),
                  QByteArray(format) == "csv" ? "2 new" : "0 new");
        const Ended import(u"import " + other, content(file));
        EXPECT_EQ(import.exitCode(), 0) << import.errors.data();
        EXPECT_EQ(Ended(u"export " + other + u" --format " + QLatin1String(format)).output,
                  content(file));
    }
    const QByteArray good = Ended(QStringLiteral("export")).output;
    const QByteArray newer =
        QByteArray(good).replace(",100,", ",101,").replace(",,,,", ",,,2030-01-01,");
    const QByteArray bad = newer + "1,2\r\n";
    const auto before = filesBeside(book.container.storePath());
    const Ended refused(QStringLiteral("import"), bad);
    EXPECT_EQ(refused.exitCode(), 1);
    EXPECT_TRUE(refused.errors.startsWith("Standard input:4: ")) << refused.errors.data();
    EXPECT_TRUE(refused.errors.contains("Nothing was imported"));
    EXPECT_EQ(Ended(QStringLiteral("export")).output, good);
    const Ended skipped(QStringLiteral("import --skip-bad"), bad);
    EXPECT_EQ(skipped.exitCode(), 0);
    EXPECT_TRUE(skipped.output.contains("1 that cannot be read")) << skipped.output.data();
    EXPECT_TRUE(Ended(QStringLiteral("export")).output.contains(",101,"));
    const Ended untitled(QStringLiteral("import"),
                         QByteArray(good).replace(",title,🙂", ",,🙂"));
    EXPECT_TRUE(untitled.errors.contains("No screen can show 2 of")) << untitled.errors.data();
}

TEST(Check, NamesEachRecordThatAScreenCannotShow) {
    const Book book({{100}, {100, "2001-01-05", "yearly"}});
    EXPECT_EQ(Ended(QStringLiteral("check")).output, "Nothing is wrong with 2 records.\n");
    const char* id = "0b5a2a4e-7a3a-4c1e-9f52-0d8f6f0c9a11";
    const std::pair<const char*, const char*> faults[] = {
        {"title = NULL", "it has no title"},
        {"emoji = NULL, endDate = NULL", "it has no emoji; it has no endDate"},
        {"startDate = 'x'", "its startDate has a wrong type"},
        {"amount = -5", "its amount is negative: -5"},
        {"amount = 9e9", "its amount has a wrong type"},
        {"isRecurring = 1, recurringType = 'Monthly'", "it recurs neither monthly nor yearly"},
        {"isRecurring = 1, amount = 200000000", "too large for 12 months: 2400000000"},
        {"title = 'a' || char(10) || 'b', emoji = NULL", "\"a b\": it has no emoji"},
        {"pk = 1", "another record has its id"},
    };
    book.elsewhere("CREATE TABLE loose AS SELECT * FROM \"Transaction\"; "
                   "DROP TABLE \"Transaction\"; ALTER TABLE loose RENAME TO \"Transaction\"");
    for (const auto& [change, words] : faults) {
        book.elsewhere("DELETE FROM \"Transaction\"");
        for (const bool isSecond : {false, true})
            if (!isSecond || QByteArray(change) == "pk = 1")
                book.elsewhere("INSERT INTO \"Transaction\" VALUES (2, 1, 'e', 4102444800000, '" +
                               std::string(id) + "', 1, 0, 'monthly', 0, 0, 'title')");
        book.elsewhere("UPDATE \"Transaction\" SET " + std::string(change));
        const Ended check(QStringLiteral("check"));
        EXPECT_EQ(check.exitCode(), 1) << change;
        EXPECT_TRUE(check.output.startsWith(id)) << change << check.output.data();
        EXPECT_TRUE(check.output.contains(words)) << change << check.output.data();
        EXPECT_EQ(check.errors, "") << change;
    }
}

TEST(Restore, PutsACopyInTheStoresPlaceAndKeepsWhatWasThere) {
    const QString path = Book({{100}}).container.storePath();
    const QString folder = QFileInfo(path).path();
    const QString copy = folder + u"/Kovamo-2001-02-03.sqlite";
    QFile::copy(path, copy);
    Book(std::initializer_list<Line>{{200}, {300}});
    // What another process has not yet brought from its log into the file is the store's, too.
    Book open({{400}});
    EXPECT_TRUE(Ended(QStringLiteral("copies")).output.contains("\n2001-02-03  "));

    for (const char* wrong : {"2001-02-04", "Kovamo.sqlite", "/dev/null", "/etc/hostname", "."}) {
        const auto before = filesBeside(path);
        const Ended refused(u"restore " + QString::fromUtf8(wrong));
        EXPECT_EQ(refused.exitCode(), 1) << wrong;
        EXPECT_NE(refused.errors, "") << wrong;
        EXPECT_EQ(filesBeside(path), before) << wrong;
    }
    const Ended restore(QStringLiteral("restore 2001-02-03"));
    EXPECT_EQ(restore.exitCode(), 0) << restore.errors.data();
    EXPECT_TRUE(restore.output.contains("The copy: 1 record\nThe store was: 4 records\n"));
    EXPECT_EQ(Book().amounts(), std::vector<std::int32_t>{100});
    EXPECT_EQ(Ended(QStringLiteral("check --store ") + copy).exitCode(), 0);

    const QStringList aside = QDir(folder).entryList({QStringLiteral("*-set-aside-*")});
    ASSERT_EQ(aside.size(), 1) << aside.join(u' ').toStdString();
    const QString name = aside[0].section(u'.', 0, 0).mid(7);
    EXPECT_TRUE(Ended(QStringLiteral("copies")).output.contains(name.toUtf8()));
    EXPECT_EQ(Ended(u"restore " + name).exitCode(), 0);
    EXPECT_EQ(Book().amounts(), (std::vector<std::int32_t>{100, 200, 300, 400}));
}

TEST(Restore, SetsADamagedStoreAsideWithItsLog) {
    const QString path = Book({{100}}).container.storePath();
    const QString copy = QFileInfo(path).path() + u"/Kovamo-2001-02-03.sqlite";
    QFile::copy(path, copy);
    for (const char* suffix : {"", "-wal"}) {
        QFile file(path + QLatin1String(suffix));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(10000, 'x'));
    }
    EXPECT_EQ(Ended(QStringLiteral("check")).exitCode(), 1);
    EXPECT_EQ(Ended(QStringLiteral("restore 2001-02-03")).exitCode(), 0);
    EXPECT_EQ(Book().amounts(), std::vector<std::int32_t>{100});
    const auto files = filesBeside(path);
    EXPECT_EQ(std::count(files.begin(), files.end(), QByteArray(10000, 'x')), 2);
}

} // namespace
} // namespace kovamo
