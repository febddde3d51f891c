// Opens the app on the store of its environment, shows twelve months and all transactions, searches
// these if it has an argument, and ends. What it needs at its peak is measured from outside.

#include "RunningApp.h"

#include <QGuiApplication>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    kovamo::RunningApp app;
    app.content().select(3);
    app.showFrame();
    app.content().setShowTransactions(true);
    app.settle();
    if (argc > 1) {
        app.content().findTransactions();
        app.content().transactionsView()->search()->setQuery(QStringLiteral("t"));
        app.settle();
    }
    return 0;
}
