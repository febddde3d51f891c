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

} // namespace
} // namespace kovamo
