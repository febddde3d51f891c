// How long the app takes from the start of its process to its first painted main screen, and how
// long a program takes that shows an empty window. Prints lines "name value unit".

#include "app/RootView.h"
#include "app/SampleData.h"
#include "model/PersistenceController.h"
#include "platform/foundation/UserDefaults.h"

#include <QCoreApplication>
#include <QTemporaryDir>
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

/// What a start costs, in milliseconds: on the clock, and of the processor's time, which a busy
/// machine does not lengthen.
struct Cost {
    double clock;
    double processor;
};

/// From the start of `program` to its end at its first frame.
Cost timed(const char* program) {
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
        qFatal("%s does not start", program);
    posix_spawn_file_actions_destroy(&quiet);
    const std::chrono::duration<double, std::milli> clock =
        std::chrono::steady_clock::now() - start;
    const auto milliseconds = [](const timeval& time) {
        return double(time.tv_sec) * 1000 + double(time.tv_usec) / 1000;
    };
    return {clock.count(), milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime)};
}

double median(const std::vector<Cost>& costs, double Cost::*kind) {
    std::vector<double> values;
    for (const Cost& cost : costs)
        values.push_back(cost.*kind);
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void report(const char* kind, double app, double empty) {
    std::printf("start_app_%s %.1f ms\nstart_empty_window_%s %.1f ms\nstart_ratio_%s %.2f times\n",
                kind, app, kind, empty, kind, app / empty);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir scratch;
    for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
        qputenv(variable, scratch.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    {
        const auto store = kovamo::PersistenceController::shared();
        kovamo::addSampleData(store.container->viewContext());
        kovamo::UserDefaults::standard().set(kovamo::RootView::onboardingFinishedKey(), true);
    }
    qputenv("LD_PRELOAD", KOVAMO_FIRST_FRAME);
    std::vector<Cost> app, empty;
    // What is read from the disk once stays in memory.
    timed(KOVAMO_EXECUTABLE);
    timed(KOVAMO_EMPTY_WINDOW);
    for (int round = 0; round < rounds; ++round) {
        app.push_back(timed(KOVAMO_EXECUTABLE));
        empty.push_back(timed(KOVAMO_EMPTY_WINDOW));
    }
    report("clock", median(app, &Cost::clock), median(empty, &Cost::clock));
    report("processor", median(app, &Cost::processor), median(empty, &Cost::processor));
    return 0;
}
