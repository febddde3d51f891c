// What whole processes of the app cost: the time from the start of the process to the first painted
// main screen, on a desktop of its own, the instructions of that and of other work, and the memory
// at its peak. Prints the rows of the tables as tab-separated fields.

#include "FirstFrame.h"
#include "RunningApp.h"
#include "support/Server.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int rounds = 25;
constexpr kovamo::Ledger lifetimeLedger{100'000, 8'700};
constexpr kovamo::Ledger emptyLedger{};
/// Enough for the first month to fill the screen, as that of the lifetime does.
constexpr kovamo::Ledger yearLedger{200, 200, 0};
constexpr kovamo::Ledger countedLedger{10'000, 1'000};
constexpr double memoryGoal = 24;
/// How many millions of instructions a start took beyond those of the plain window at 7d98122, with
/// Qt 6.4.2.
constexpr double instructionsBefore = 71.6;

using Command = std::vector<const char*>;

/// A program that was started.
class Process {
  public:
    /// Its file for the first frame is this process's `frame`.
    explicit Process(Command command, int frame = STDERR_FILENO) {
        command.push_back(nullptr);
        posix_spawn_file_actions_t files;
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&files, frame, kovamo::firstFrameFile);
        auto* arguments = const_cast<char**>(command.data());
        if (posix_spawnp(&m_process, command[0], &files, nullptr, arguments, environ) != 0)
            qFatal("%s cannot be started", command[0]);
        posix_spawn_file_actions_destroy(&files);
    }

    /// Waits for its end; returns its peak memory in mebibytes.
    [[nodiscard]] double peak() const {
        int status = 1;
        rusage usage{};
        if (wait4(m_process, &status, 0, &usage) != m_process || status != 0)
            qFatal("a process failed");
        return static_cast<double>(usage.ru_maxrss) / 1024;
    }

  private:
    pid_t m_process = 0;
};

/// Milliseconds from the start of `program` to its first frame.
double timeToFirstFrame(const char* program) {
    std::array<int, 2> frame{};
    if (pipe2(frame.data(), O_CLOEXEC) != 0)
        qFatal("no pipe");
    const auto start = std::chrono::steady_clock::now();
    const Process process({program}, frame[1]);
    close(frame[1]);
    char byte = 0;
    const bool isShown = read(frame[0], &byte, 1) == 1;
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    close(frame[0]);
    if (!isShown)
        qFatal("%s shows no frame", program);
    static_cast<void>(process.peak());
    return time.count();
}

double median(std::vector<double> values) {
    std::ranges::nth_element(values, values.begin() + std::ssize(values) / 2);
    return values[values.size() / 2];
}

/// A folder as `XDG_DATA_HOME` and what is started with it.
struct Contestant {
    const QTemporaryDir& folder;
    const char* program;
};

/// The medians of several contestants' milliseconds to the first frame, run in turns.
template<std::size_t n>
std::array<double, n> startsOf(const std::array<Contestant, n>& contestants) {
    qputenv("LD_PRELOAD", KOVAMO_FIRST_FRAME);
    std::array<std::vector<double>, n> times;
    for (int round = -1; round < rounds; ++round)
        for (std::size_t i = 0; i < n; ++i) {
            qputenv("XDG_DATA_HOME", contestants[i].folder.path().toLocal8Bit());
            const double time = timeToFirstFrame(contestants[i].program);
            // What the first round reads from the disk stays in memory.
            if (round >= 0)
                times[i].push_back(time);
        }
    qunsetenv("LD_PRELOAD");
    std::array<double, n> medians{};
    std::ranges::transform(times, medians.begin(), median);
    return medians;
}

/// A session's bus that starts no service of its own accord.
constexpr const char* busConfiguration = R"(<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

/// A desktop without a screen to look at: a bus for the session, and a display for the windows.
/// Without a bus, a program would wait for one to be started, and a display that starts afresh
/// when its last window closes would let the next one wait.
class Desktop {
  public:
    Desktop() {
        QFile configuration(m_configuration);
        if (!configuration.open(QIODevice::WriteOnly) || configuration.write(busConfiguration) < 0)
            qFatal("no configuration for the bus");
        configuration.close();
        const kovamo::Server& bus =
            m_bus.emplace(QStringLiteral("dbus-daemon"),
                          QStringList{QStringLiteral("--config-file"), m_configuration,
                                      QStringLiteral("--print-address")});
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address.toLatin1());
        qputenv("DISPLAY", QByteArray(":" + m_display.address.toLatin1()));
        qputenv("QT_QPA_PLATFORM", "xcb");
        qputenv("XDG_RUNTIME_DIR", m_folder.path().toLocal8Bit());
    }
    ~Desktop() { qputenv("QT_QPA_PLATFORM", "offscreen"); }
    Q_DISABLE_COPY_MOVE(Desktop)

  private:
    QTemporaryDir m_folder;
    QString m_configuration = m_folder.filePath(QStringLiteral("bus.conf"));
    std::optional<kovamo::Server> m_bus;
    kovamo::Server m_display{QStringLiteral("Xvfb"),
                             {QStringLiteral("-noreset"), QStringLiteral("-displayfd"),
                              QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                              QStringLiteral("1280x1024x24")}};
};

void printRow(const char* what, double figure, const char* unit, const char* against,
              double reference, double goal) {
    std::printf("row\t%s\t%.1f %s\t%s\t%.1f %s\t%.2f\t%.2f\n", what, figure, unit, against,
                reference, unit, figure / reference, goal);
}

/// Mebibytes at the peak of a process that opens both screens on that folder's store.
double peakOf(const QTemporaryDir& folder, const Command& screens = {KOVAMO_OPEN_SCREENS}) {
    qputenv("XDG_DATA_HOME", folder.path().toLocal8Bit());
    std::vector<double> peaks;
    for (int round = 0; round < 5; ++round)
        peaks.push_back(Process(screens).peak());
    return median(peaks);
}

/// The millions of instructions of `command`, or of those within its function of that name alone.
double instructionsOf(const QTemporaryDir& folder, const Command& command,
                      const QByteArray& function = {}) {
    qputenv("XDG_DATA_HOME", folder.path().toLocal8Bit());
    // Else the order in hash tables, and with it the work, differs from run to run.
    qputenv("QT_HASH_SEED", "0");
    QTemporaryFile log;
    if (!log.open())
        qFatal("no log");
    const QByteArray logOption = "--log-file=" + log.fileName().toLocal8Bit();
    Command counter{"valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null",
                    logOption.constData()};
    const QByteArray collectOption = "--toggle-collect=" + function;
    if (!function.isEmpty())
        counter.push_back(collectOption.constData());
    counter.insert(counter.end(), command.begin(), command.end());
    static_cast<void>(Process(counter).peak());
    qunsetenv("QT_HASH_SEED");
    const QRegularExpressionMatch total = QRegularExpression(QStringLiteral("Collected : (\\d+)"))
                                              .match(QString::fromUtf8(log.readAll()));
    if (!total.hasMatch())
        qFatal("no count of instructions");
    return total.captured(1).toDouble() / 1e6;
}

void printCount(const char* what, double millions) {
    std::printf("count\tQt %s\t%s\t%.1f\n", qVersion(), what, millions);
}

/// Folders with stores.
struct Stores {
    QTemporaryDir empty, year, counted, lifetime;
};

void timeStarts(const Stores& stores) {
    const Desktop desktop;
    const auto [window, start, startOfYear, startOfLifetime] = startsOf(std::array{
        Contestant{stores.empty, KOVAMO_PLAIN_WINDOW}, Contestant{stores.empty, KOVAMO_EXECUTABLE},
        Contestant{stores.year, KOVAMO_EXECUTABLE},
        Contestant{stores.lifetime, KOVAMO_EXECUTABLE}});
    printRow("start to the first painted main screen", start, "ms",
             "a window with a text, an emoji and an icon", window, 1.5);
    printRow("start with 100,000 records, both with a full screen", startOfLifetime, "ms",
             "with 200", startOfYear, 1.1);
}

void countInstructions(const Stores& stores) {
    {
        const Desktop desktop;
        qputenv("LD_PRELOAD", KOVAMO_FIRST_FRAME);
        const double window = instructionsOf(stores.empty, {KOVAMO_PLAIN_WINDOW});
        const double start = instructionsOf(stores.empty, {KOVAMO_EXECUTABLE});
        qunsetenv("LD_PRELOAD");
        printCount("a window with a text, an emoji and an icon", window);
        printCount("start to the first painted main screen", start);
        if (qstrcmp(qVersion(), "6.4.2") == 0)
            printRow("instructions of a start beyond those of that window", start - window,
                     "million", "at 7d98122", instructionsBefore, 0.6);
    }
    for (const auto& [name, what] :
         {std::pair{"change", "change of time frame, 1,000 in it"},
          std::pair{"save", "save of a new record until laid out, 1,000 in the time frame"},
          std::pair{"open", "opening all transactions"}})
        printCount(what, instructionsOf(stores.counted, {KOVAMO_COUNTED_WORK, name}, "counted"));
}

void measureMemory(const Stores& stores) {
    const double least = peakOf(stores.empty);
    printRow("memory for 100,000 records, both screens opened", peakOf(stores.lifetime) - least,
             "MiB", "what it may be", memoryGoal, 1);
    printRow("the same with a search opened",
             peakOf(stores.lifetime, {KOVAMO_OPEN_SCREENS, "search"}) - least, "MiB",
             "what it may be", memoryGoal, 1);
}

} // namespace

/// With the argument --count, counts instructions alone.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const bool countsAlone = argc > 1 && qstrcmp(argv[1], "--count") == 0;
    const QGuiApplication application(argc, argv);
    const Stores stores;
    kovamo::makeStore(stores.lifetime, lifetimeLedger);
    kovamo::makeStore(stores.counted, countedLedger);
    kovamo::makeStore(stores.year, yearLedger);
    kovamo::makeStore(stores.empty, emptyLedger);
    if (!countsAlone)
        timeStarts(stores);
    countInstructions(stores);
    if (!countsAlone)
        measureMemory(stores);
}
