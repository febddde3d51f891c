// What whole processes of the app cost: the time from the start of the process to the first painted
// main screen, on a display of its own where it can have one, and the memory at its peak. Prints
// the rows of the table as tab-separated fields.

#include "RunningApp.h"

#include <QGuiApplication>
#include <QProcess>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <vector>

namespace {

constexpr int rounds = 25;
constexpr kovamo::Ledger lifetimeLedger{100'000, 8'700};
constexpr kovamo::Ledger emptyLedger{};
/// Enough for the first month to fill the screen, as that of the lifetime does.
constexpr kovamo::Ledger yearLedger{200, 200, 0};
constexpr double memoryGoal = 24;

/// What a process costs: milliseconds on the clock, and mebibytes of memory at its peak.
struct Cost {
    double milliseconds;
    double mebibytes;
};

/// From the start of `program` to its end.
Cost costOf(const char* program) {
    std::array<char*, 2> arguments{const_cast<char*>(program), nullptr};
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const auto start = std::chrono::steady_clock::now();
    pid_t process = 0;
    int status = 1;
    rusage usage{};
    if (posix_spawn(&process, program, &quiet, nullptr, arguments.data(), environ) != 0 ||
        wait4(process, &status, 0, &usage) != process || status != 0)
        qFatal("%s fails", program);
    posix_spawn_file_actions_destroy(&quiet);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    return {time.count(), static_cast<double>(usage.ru_maxrss) / 1024};
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
            const double time = costOf(contestants[i].program).milliseconds;
            // What the first round reads from the disk stays in memory.
            if (round >= 0)
                times[i].push_back(time);
        }
    qunsetenv("LD_PRELOAD");
    std::array<double, n> medians{};
    std::ranges::transform(times, medians.begin(), median);
    return medians;
}

/// An X server without a screen to look at, and windows that go there. Where there is none to be
/// had, windows stay off the screen.
class XServer {
  public:
    XServer() {
        // The server writes the number that it found free to its standard output.
        m_server.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1"),
                                                QStringLiteral("-screen"), QStringLiteral("0"),
                                                QStringLiteral("1280x1024x24")});
        if (!m_server.waitForStarted() || !m_server.waitForReadyRead())
            return;
        qputenv("DISPLAY", ':' + m_server.readLine().trimmed());
        qputenv("QT_QPA_PLATFORM", "xcb");
        m_name = "on X";
    }
    ~XServer() {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        m_server.terminate();
        m_server.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(XServer)

    [[nodiscard]] const char* name() const { return m_name; }

  private:
    QProcess m_server;
    const char* m_name = "off the screen";
};

double peakOf(const QTemporaryDir& folder) {
    qputenv("XDG_DATA_HOME", folder.path().toLocal8Bit());
    std::vector<double> peaks;
    for (int round = 0; round < 5; ++round)
        peaks.push_back(costOf(KOVAMO_OPEN_SCREENS).mebibytes);
    return median(peaks);
}

void printRow(const char* what, double figure, const char* unit, const char* against,
              double reference, double goal) {
    std::printf("row\t%s\t%.1f %s\t%s\t%.1f %s\t%.2f\t%.2f\n", what, figure, unit, against,
                reference, unit, figure / reference, goal);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir empty, year, lifetime;
    kovamo::makeStore(lifetime, lifetimeLedger);
    kovamo::makeStore(year, yearLedger);
    kovamo::makeStore(empty, emptyLedger);

    {
        const XServer server;
        const auto [window, start, startOfYear, startOfLifetime] = startsOf(std::array{
            Contestant{empty, KOVAMO_EMPTY_WINDOW}, Contestant{empty, KOVAMO_EXECUTABLE},
            Contestant{year, KOVAMO_EXECUTABLE}, Contestant{lifetime, KOVAMO_EXECUTABLE}});
        const QByteArray what =
            QByteArrayLiteral("start to the first painted main screen, ") + server.name();
        printRow(what.constData(), start, "ms", "an empty window", window, 1.3);
        printRow("start with 100,000 records", startOfLifetime, "ms", "with none", start, 1.15);
        printRow("start with 100,000 records, both with a full screen", startOfLifetime, "ms",
                 "with 200", startOfYear, 1.15);
    }
    const double more = peakOf(lifetime) - peakOf(empty);
    printRow("memory for 100,000 records, both screens opened", more, "MiB", "what it may be",
             memoryGoal, 1);
}
