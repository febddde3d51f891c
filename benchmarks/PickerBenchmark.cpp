#include "app/KovamoApp.h"
#include "app/RootView.h"
#include "model/Transaction.h"
#include "platform/foundation/Calendar.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/objectstore/PersistentContainer.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <benchmark/benchmark.h>

namespace kovamo {
namespace {

constexpr double displayFrameMilliseconds = 1000.0 / 60;
constexpr int recurringRecords = 50;

/// A store of `stored` records of which `inFrame` lie in the twelve-month frame, and some recur.
void fill(ManagedObjectContext& context, int stored, int inFrame) {
    const Calendar calendar;
    const CalendarDay today = calendar.day(Clock::now());
    for (int i = 0; i < stored; ++i) {
        auto& transaction = context.insert<Transaction>();
        const bool recurs = i < recurringRecords;
        const int month = i < inFrame ? i % 12 : -1 - i % 600;
        transaction.setId(QUuid::createUuid());
        transaction.setTimestamp(Clock::now());
        transaction.setTitle(QStringLiteral("Transaction %1").arg(i));
        transaction.setEmoji(QStringLiteral("🛒"));
        transaction.setAmount(1 + i * 7919 % 5000);
        transaction.setIsPositive(i % 5 == 0);
        transaction.setIsRecurring(recurs);
        transaction.setRecurringType(QString::fromLatin1(i % 2 ? "monthly" : "yearly"));
        transaction.setStartDate(
            calendar.instant({today.year, today.month + month, 1 + i % 28}, 12));
        transaction.setEndDate(calendar.instant({today.year + 2, today.month, 1}));
    }
    context.save();
}

/// The app in its window on a store of its own.
struct Running {
    QTemporaryDir folder;
    PersistentContainer container{QStringLiteral("Kovamo"), Transaction::entity()};
    std::unique_ptr<RootView> root;
    std::unique_ptr<QQmlApplicationEngine> engine;

    Running(int stored, int inFrame) {
        qputenv("XDG_DATA_HOME", folder.path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
        UserDefaults::reopenStandard();
        container.loadPersistentStores([](const StoreError* error) {
            if (error)
                unresolvedError(*error);
        });
        fill(container.viewContext(), stored, inFrame);
        UserDefaults::standard().set(RootView::onboardingFinishedKey(), true);
        root = std::make_unique<RootView>(container.viewContext());
        engine = std::make_unique<QQmlApplicationEngine>();
        KovamoApp::showWindow(*engine, *root).setProperty("reducedMotion", true);
        QCoreApplication::processEvents();
    }
};

/// From the tap to the moment at which everything is gathered and laid out, bindings included.
void tapOnThePicker(benchmark::State& state) {
    Running app(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    ContentView& content = *app.root->content();
    const auto tap = [&content](int timeFrame) {
        content.select(timeFrame);
        QCoreApplication::sendPostedEvents();
    };
    tap(3);
    std::chrono::duration<double, std::milli> total{};
    for (auto _ : state) {
        state.PauseTiming();
        tap(1);
        state.ResumeTiming();
        const auto start = std::chrono::steady_clock::now();
        tap(3);
        total += std::chrono::steady_clock::now() - start;
    }
    state.counters["of a display frame"] =
        total.count() / static_cast<double>(state.iterations()) / displayFrameMilliseconds;
    state.counters["rows"] = content.filteredList()->rowCount();
}

/// What to hold it against: the same two queries once, their amounts added up, in plain SQLite.
void plainQueries(benchmark::State& state) {
    const Running app(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    const Period period = periodBounds(3);
    SQLite::Database database(app.container.storePath().toStdString());
    SQLite::Statement oneOff(database,
                             "SELECT amount FROM \"Transaction\" WHERE startDate >= ? AND "
                             "startDate < ? AND isRecurring = 0");
    SQLite::Statement recurring(database,
                                "SELECT amount FROM \"Transaction\" WHERE isRecurring = 1");
    for (auto _ : state) {
        std::int64_t sum = 0;
        oneOff.reset();
        oneOff.bind(1, static_cast<std::int64_t>(period.start.time_since_epoch().count()));
        oneOff.bind(2, static_cast<std::int64_t>(period.end.time_since_epoch().count()));
        for (SQLite::Statement* statement : {&oneOff, &recurring}) {
            while (statement->executeStep())
                sum += statement->getColumn(0).getInt();
            statement->reset();
        }
        benchmark::DoNotOptimize(sum);
    }
}

BENCHMARK(tapOnThePicker)->Args({10000, 1000})->Args({100000, 8700})->Unit(benchmark::kMillisecond);
BENCHMARK(plainQueries)->Args({10000, 1000})->Args({100000, 8700})->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kovamo

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    benchmark::Initialize(&argc, argv);
    const QGuiApplication app(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
