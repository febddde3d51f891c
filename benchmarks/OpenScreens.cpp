// Opens the app on the store of its environment, shows twelve months and all transactions, and
// ends. What it needs at its peak is measured from outside.

#include "RunningApp.h"

#include <QGuiApplication>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    kovamo::RunningApp app;
    app.content().select(3);
    app.showFrame();
    app.content().setShowTransactions(true);
    app.settle();
    return 0;
}
