// Does a piece of the app's work on the store of its environment: what its one argument says. An
// instruction counter that counts within `counted` alone leaves the start and the first round out.

#include "RunningApp.h"
#include "editing/AddTransactionView.h"

#include <QGuiApplication>
#include <functional>
#include <map>
#include <string>

namespace {

using kovamo::RunningApp;

void select(RunningApp& app, kovamo::TimeFrame timeFrame) {
    app.content().select(timeFrame);
    app.layOut();
}

void save(RunningApp& app) {
    kovamo::AddTransactionView form(app.context());
    form.setEmoji(QStringLiteral("🛒"));
    form.setTitle(QStringLiteral("Groceries"));
    form.setAmount(QStringLiteral("42"));
    form.save();
    app.layOut();
}

void open(RunningApp& app) {
    app.content().setShowTransactions(true);
    app.layOut();
}

/// What is done before each round, and the round.
struct Work {
    std::function<void(RunningApp&)> prepare;
    std::function<void(RunningApp&)> round;
};

const std::map<std::string, Work> works{
    {"change", {[](RunningApp& app) { select(app, 1); }, [](RunningApp& app) { select(app, 3); }}},
    {"save", {[](RunningApp& app) { select(app, 3); }, save}},
    {"open",
     {[](RunningApp& app) {
          app.content().setShowTransactions(false);
          app.settle();
      },
      open}},
};

} // namespace

extern "C" [[gnu::noinline]] void counted(const std::function<void(RunningApp&)>& round,
                                          RunningApp& app) {
    round(app);
}

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const Work& work = works.at(argc > 1 ? argv[1] : "");
    RunningApp app;
    work.prepare(app);
    work.round(app);
    work.prepare(app);
    counted(work.round, app);
    return 0;
}
