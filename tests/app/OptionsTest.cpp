#include "app/SoleInstance.h"
#include "support/World.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QUrl>
#include <sys/wait.h>
#include <unistd.h>

namespace kovamo {
namespace {

/// The app itself, run to its end.
struct Ended : QProcess {
    explicit Ended(const QStringList& arguments) {
        start(QStringLiteral(KOVAMO_EXECUTABLE), arguments);
        EXPECT_TRUE(waitForFinished(600000));
        output = readAllStandardOutput();
        errors = readAllStandardError();
    }
    QByteArray output, errors;
};

TEST(Options, AreExplainedAndUnknownOnesRefused) {
    for (const char* wrong : {"--frob", "nowhere.csv", "/", "--appearance", "--appearance sepia",
                              "--appearance=sepia", "--pictures"}) {
        const Ended run(QString::fromUtf8(wrong).split(u' '));
        EXPECT_EQ(run.exitCode(), 2) << wrong;
        EXPECT_TRUE(run.errors.endsWith("Try: kovamo --help\n")) << wrong;
        EXPECT_EQ(run.output, "") << wrong;
    }
    const Ended help({QStringLiteral("--appearance=dark"), QStringLiteral("--help")});
    EXPECT_EQ(help.exitCode(), 0);
    for (const char* part : {"Usage: kovamo [options]", "--demo", "--appearance <light|dark>"})
        EXPECT_TRUE(help.output.contains(part)) << part;
}

TEST(Options, PicturesShowEveryScreenAndTouchNothingOfTheUsers) {
    const QDir pictures(World::folder() + u"/pictures");
    const Ended run({QStringLiteral("--pictures"), pictures.path()});
    EXPECT_EQ(run.exitCode(), 0);
    EXPECT_FALSE(run.errors.contains(".qml")) << run.errors.toStdString();
    const QStringList files = pictures.entryList({QStringLiteral("*.png")});
    EXPECT_GE(files.size(), 100);
    QSet<QByteArray> different;
    for (const QString& file : files) {
        EXPECT_TRUE(run.output.contains(pictures.filePath(file).toUtf8()));
        const QImage image(pictures.filePath(file));
        QImage blank(image.size(), image.format());
        blank.fill(image.pixelColor(0, 0));
        EXPECT_NE(image, blank) << file.toStdString();
        different.insert(
            QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()));
    }
    EXPECT_EQ(different.size(), files.size()) << "two screens look the same";
    for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"})
        EXPECT_TRUE(QDir(QString::fromUtf8(qgetenv(variable))).isEmpty()) << variable;
}

TEST(SecondStart, LeavesTheFirstAloneAndComesBackWhenThatIsKilled) {
    for (int round = 0; round < 2; ++round) {
        QProcess starts[2];
        for (QProcess& start : starts)
            start.start(QStringLiteral(KOVAMO_EXECUTABLE), QStringList());
        int ended = 0;
        const QDeadlineTimer deadline(120000);
        while (!starts[ended].waitForFinished(50) && !deadline.hasExpired())
            ended = 1 - ended;
        EXPECT_EQ(starts[ended].state(), QProcess::NotRunning) << "both show a window";
        EXPECT_EQ(starts[ended].exitCode(), 0);
        EXPECT_EQ(starts[1 - ended].state(), QProcess::Running) << "nobody shows the window";
        starts[1 - ended].kill();
        starts[1 - ended].waitForFinished();
    }
}

TEST(SecondStart, HandsWhatItAsksForToTheFirst) {
    SoleInstance first(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    QList<Start> heard;
    QObject::connect(&first, &SoleInstance::activationRequested, &first,
                     [&](const Start& start) { heard.append(start); });
    const QString name = QStringLiteral(" 100% of a/b\n\t銀行 مصرف.csv").replace(u'/', u'+');
    const QString path = World::folder() + u'/' + name;
    ASSERT_TRUE(QFile(path).open(QFile::WriteOnly));
    const std::pair<QStringList, Start> starts[] = {
        {{}, {}},
        {{QStringLiteral("--new-transaction")}, {StartAction::newTransaction}},
        {{QStringLiteral("--all-transactions"), path}, {StartAction::allTransactions, path}},
        {{name}, {StartAction::none, path}},
        {{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)}, {StartAction::none, path}},
    };
    for (const auto& [arguments, start] : starts) {
        QProcess second;
        second.setWorkingDirectory(World::folder());
        second.start(QStringLiteral(KOVAMO_EXECUTABLE), arguments);
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return second.state() == QProcess::NotRunning; }, 120000));
        EXPECT_EQ(second.exitCode(), 0) << second.readAllStandardError().data();
        EXPECT_TRUE(!heard.isEmpty() && heard.last() == start)
            << arguments.join(u' ').toStdString();
    }
}

TEST(Options, AreAnsweredAlsoWhereNobodyReads) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    const pid_t app = ::fork();
    if (app == 0) {
        ::dup2(ends[1], STDOUT_FILENO);
        ::close(ends[0]);
        ::execl(KOVAMO_EXECUTABLE, "kovamo", "--version", nullptr);
        ::_exit(127);
    }
    ::close(ends[0]);
    ::close(ends[1]);
    int status = 0;
    ::waitpid(app, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << WTERMSIG(status);
}

} // namespace
} // namespace kovamo
