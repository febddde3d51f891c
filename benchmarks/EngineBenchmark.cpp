// What the app's engine costs with a lifetime of records, held against plain loops over the same
// file. Prints Google Benchmark's figures, then the rows of the table as tab-separated fields.

#include "RunningApp.h"
#include "editing/AddTransactionView.h"
#include "platform/foundation/NotificationCenter.h"

#include <QGuiApplication>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <map>
#include <string>

namespace kovamo {
namespace {

constexpr double displayFrame = 1000.0 / 60;
constexpr double longestWait = 50;
constexpr int lifetime = 100'000;
constexpr int stress = 1'000'000;
constexpr Ledger lifetimeLedger{lifetime, 8'700};
constexpr Ledger stressLedger{stress, 1'000};
constexpr double pointsAFrame = 400;

/// The apps that run, by what their stores hold.
class Apps {
  public:
    RunningApp& operator()(const Ledger& ledger) {
        auto& place = m_places[{ledger.stored, ledger.inFrame}];
        if (!place.app) {
            makeStore(place.folder, ledger);
            place.app = std::make_unique<RunningApp>();
        }
        return *place.app;
    }

  private:
    struct Place {
        QTemporaryDir folder;
        std::unique_ptr<RunningApp> app;
    };
    std::map<std::pair<int, int>, Place> m_places;
};

void select(RunningApp& app, TimeFrame timeFrame) {
    app.content().select(timeFrame);
    app.layOut();
}

/// From the tap on the picker until everything is gathered and laid out.
void frameChange(benchmark::State& state, Apps& apps, Ledger ledger) {
    RunningApp& app = apps(ledger);
    select(app, 3);
    for (auto _ : state) {
        state.PauseTiming();
        select(app, 1);
        state.ResumeTiming();
        select(app, 3);
    }
}

void plainLoop(benchmark::State& state, Apps& apps) {
    PlainLoop& plain = apps(lifetimeLedger).plain();
    for (auto _ : state)
        benchmark::DoNotOptimize(plain.sum());
}

/// Lays everything out as after a save of the form.
void refresh(RunningApp& app) {
    NotificationCenter::defaultCenter().post(transactionRefresh());
    app.layOut();
}

/// Times `work` with a record that is new each time and taken back after it, so that the last
/// round works on as many records as the first.
void withNewRecord(benchmark::State& state, RunningApp& app, const auto& work) {
    ManagedObjectContext& context = app.context();
    ManagedObject* inserted = nullptr;
    const auto connection = QObject::connect(
        &context, &ManagedObjectContext::objectsDidChange, [&](const ObjectChanges& changes) {
            inserted = changes.inserted.empty() ? inserted : changes.inserted.back();
        });
    select(app, 3);
    for (auto _ : state) {
        state.PauseTiming();
        AddTransactionView form(context);
        form.setEmoji(QStringLiteral("🛒"));
        form.setTitle(QStringLiteral("Groceries"));
        form.setAmount(QStringLiteral("42"));
        work(form);
        state.PauseTiming();
        context.deleteObject(*inserted);
        context.save();
        refresh(app);
        state.ResumeTiming();
    }
    QObject::disconnect(connection);
}

/// From the press of "Save" until everything is laid out with the new record.
void save(benchmark::State& state, Apps& apps) {
    RunningApp& app = apps(lifetimeLedger);
    withNewRecord(state, app, [&](AddTransactionView& form) {
        state.ResumeTiming();
        form.save();
        app.layOut();
    });
}

/// What a save costs beside the writing: everything laid out with one more record.
void layout(benchmark::State& state, Apps& apps) {
    RunningApp& app = apps(lifetimeLedger);
    withNewRecord(state, app, [&](AddTransactionView& form) {
        auto& transaction = app.context().insert<Transaction>();
        transaction.setId(QUuid::createUuid());
        transaction.setEmoji(form.emoji());
        transaction.setTitle(form.title());
        transaction.setAmount(form.amount().toInt());
        transaction.setIsPositive(true);
        transaction.setStartDate(Clock::now());
        app.context().save();
        state.ResumeTiming();
        refresh(app);
    });
}

/// One insert, and not the thousandth in a row: as in the app, everything is read before the next.
void plainInsert(benchmark::State& state, Apps& apps) {
    PlainLoop& plain = apps(lifetimeLedger).plain();
    for (auto _ : state) {
        state.PauseTiming();
        benchmark::DoNotOptimize(plain.sum());
        state.ResumeTiming();
        plain.insert();
    }
}

/// From Ctrl+L until the list stands in its sheet.
void openList(benchmark::State& state, Apps& apps) {
    RunningApp& app = apps(stressLedger);
    for (auto _ : state) {
        app.content().setShowTransactions(true);
        app.layOut();
        state.PauseTiming();
        app.content().setShowTransactions(false);
        app.settle();
        state.ResumeTiming();
    }
}

void plainSelect(benchmark::State& state, Apps& apps) {
    PlainLoop& plain = apps(stressLedger).plain();
    for (auto _ : state)
        benchmark::DoNotOptimize(plain.countByAmount());
}

/// Milliseconds from each letter typed into the search, or taken out of it, until the window shows
/// what it finds.
std::vector<double> searches(RunningApp& app) {
    app.content().findTransactions();
    TransactionSearch& search = *app.content().transactionsView()->search();
    // The first query waits until all is gathered that is searched.
    search.setQuery(QStringLiteral("x"));
    app.settle();
    std::vector<double> times;
    const auto type = [&](const QString& query) {
        const auto start = std::chrono::steady_clock::now();
        search.setQuery(query);
        app.showFrame();
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - start;
        times.push_back(time.count());
    };
    for (const QString& query : {QStringLiteral("transaction 4711"), QStringLiteral("cart earning"),
                                 QStringLiteral("2024 monthly")}) {
        for (qsizetype letters = 1; letters <= query.size(); ++letters)
            type(query.first(letters));
        for (qsizetype letters = query.size() - 1; letters >= 0; --letters)
            type(query.first(letters));
    }
    std::ranges::sort(times);
    return times;
}

/// How many display frames are missed while the list in the foreground is scrolled to its end, a
/// screen's half a frame.
int missedFrames(RunningApp& app, int& shown) {
    int missed = 0;
    QQuickItem& list = app.list();
    const double end = list.property("contentHeight").toDouble() - list.height();
    app.showFrame();
    for (double y = 0; y < end; y += pointsAFrame, ++shown) {
        list.setProperty("contentY", y);
        const auto start = std::chrono::steady_clock::now();
        app.showFrame();
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - start;
        missed += time.count() > displayFrame;
    }
    return missed;
}

/// Keeps the median of each benchmark.
class Medians : public benchmark::ConsoleReporter {
  public:
    Medians() : ConsoleReporter(OO_None) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (run.aggregate_name == "median")
                m_milliseconds[run.run_name.function_name] = run.GetAdjustedRealTime();
    }

    double operator[](const std::string& name) const { return m_milliseconds.at(name); }

  private:
    std::map<std::string, double> m_milliseconds;
};

/// A row of the table: what, its figure, against what, that one's figure, the goal of the ratio.
void printRow(const char* what, double figure, const char* against, double reference, double goal) {
    std::printf("row\t%s\t%.2f ms\t%s\t%.2f ms\t%.2f\t%.2f\n", what, figure, against, reference,
                figure / reference, goal);
}

void printRows(const Medians& median, Apps& apps) {
    const double change = median["change the time frame"], plain = median["plain loop"];
    printRow("change of time frame, 100,000 stored, 8,700 in it", change,
             "plain SQLite loop over the same queries", plain, 0.5);
    printRow("the same change of time frame", change, "one display frame", displayFrame, 1);
    const double smallest = median["frame of 1,000, 10,000 stored"];
    for (const char* larger :
         {"frame of 1,000, 100,000 stored", "frame of 1,000, 1,000,000 stored"})
        printRow(larger, median[larger], "with 10,000 stored", smallest, 1.2);
    printRow("save of a new record until laid out", median["save"],
             "1.2 plain inserts and one layout", 1.2 * median["plain insert"] + median["layout"],
             1);
    printRow("opening all transactions, 1,000,000 stored", median["open the list"],
             "plain SELECT of the row ids", median["plain select"], 1.5);

    RunningApp& app = apps(lifetimeLedger);
    for (const char* list : {"the time frame's list", "all transactions"}) {
        int shown = 0;
        const int missed = missedFrames(app, shown);
        std::printf("row\tscrolling %s end to end\t%d missed\tframes shown\t%d\t%.4f\t0\n", list,
                    missed, shown, static_cast<double>(missed) / shown);
        app.content().setShowTransactions(true);
        app.settle();
    }
    const std::vector<double> search = searches(app);
    printRow("search in 100,000, a letter typed until shown", search[search.size() / 2],
             "one display frame", displayFrame, 1);
    printRow("the slowest of these letters", search.back(), "what it may be", longestWait, 1);
}

} // namespace
} // namespace kovamo

int main(int argc, char** argv) {
    using namespace kovamo;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    // What is held against each other runs in turns: a machine has better and worse moments.
    std::vector<char*> arguments(argv, argv + argc);
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, interleaving.data());
    argc = static_cast<int>(arguments.size());
    benchmark::Initialize(&argc, arguments.data());
    const QGuiApplication application(argc, arguments.data());
    Apps apps;
    Medians medians;
    const auto add = [&apps](const char* name, auto work, auto... more) {
        return benchmark::RegisterBenchmark(name, work, std::ref(apps), more...)
            ->Unit(benchmark::kMillisecond)
            ->MinTime(0.1)
            ->Repetitions(25)
            ->ReportAggregatesOnly();
    };
    add("change the time frame", frameChange, lifetimeLedger);
    add("plain loop", plainLoop);
    add("layout", layout);
    add("save", save);
    add("plain insert", plainInsert)->MinTime(0.03);
    benchmark::RunSpecifiedBenchmarks(&medians);
    benchmark::ClearRegisteredBenchmarks();

    // Every app that runs here hears of a save: those that do not save run when all is saved.
    add("frame of 1,000, 10,000 stored", frameChange, Ledger{10'000, 1'000});
    add("frame of 1,000, 100,000 stored", frameChange, Ledger{lifetime, 1'000});
    add("frame of 1,000, 1,000,000 stored", frameChange, stressLedger);
    add("open the list", openList);
    add("plain select", plainSelect);
    benchmark::RunSpecifiedBenchmarks(&medians);
    printRows(medians, apps);
}
