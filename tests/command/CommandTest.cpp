#include "support/Book.h"

#include <QDir>
#include <QProcess>

namespace kovamo {
namespace {

/// A command of the program itself, run to its end. No window system answers it.
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
        {"list --frame 12", 0, "+ $1,200  🙂  title\n        - $360  🙂  title\n"},
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

} // namespace
} // namespace kovamo
