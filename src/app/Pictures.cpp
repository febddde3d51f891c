#include "Pictures.h"

#include "RootView.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QQuickWindow>
#include <cstdio>
#include <functional>

namespace kovamo {

namespace {

/// Lets what is queued happen until nothing is left to do.
void settle() {
    for (int turn = 0; turn < 20; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

struct Picture {
    const char* name;
    std::function<void()> arrange;
};

} // namespace

bool drawPictures(QQuickWindow& window, RootView& root, const QString& folder) {
    OnboardingView& onboarding = *root.onboarding();
    ContentView& content = *root.content();
    QDir().mkpath(folder);
    window.setProperty("reducedMotion", true);
    const Picture pictures[] = {
        {"onboarding-1", [] {}},
        {"onboarding-2", [&] { onboarding.next(); }},
        {"onboarding-3", [&] { onboarding.next(); }},
        {"onboarding-4", [&] { onboarding.next(); }},
        {"current-month", [&] { onboarding.next(); }},
        {"three-months", [&] { content.select(2); }},
        {"twelve-months", [&] { content.select(3); }},
        {"new-transaction", [&] { content.setShowAddTransaction(true); }},
        {"new-recurring-transaction", [&] { content.addForm()->setIsRecurring(true); }},
        {"transactions",
         [&] {
             content.setShowAddTransaction(false);
             content.setShowTransactions(true);
         }},
    };
    bool wroteAll = true;
    for (const Picture& picture : pictures) {
        picture.arrange();
        settle();
        const QString path = QDir(folder).absoluteFilePath(QLatin1String(picture.name) + u".png");
        const bool wrote = window.grabWindow().save(path);
        std::printf("%s\n", qPrintable(wrote ? path : u"cannot write " + path));
        wroteAll = wroteAll && wrote;
    }
    return wroteAll;
}

} // namespace kovamo
