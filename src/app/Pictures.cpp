#include "Pictures.h"

#include "RootView.h"
#include "SampleData.h"
#include "platform/desktop/StoreReviewController.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <cstdio>
#include <functional>

namespace kovamo {

namespace {

/// A phone as small as there are, a phone, the same on its side, and a tablet.
constexpr QSize sizes[] = {{320, 480}, {390, 844}, {844, 390}, {820, 1180}};

struct Picture {
    const char* name;
    std::function<void()> arrange;
};

/// Lets what is queued happen until nothing is left to do.
void settle() {
    for (int turn = 0; turn < 20; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// The first visible item below `item` that has `property`; null for none.
QQuickItem* itemWith(QQuickItem* item, const char* property) {
    if (!item->isVisible() || item->property(property).isValid())
        return item->isVisible() ? item : nullptr;
    for (QQuickItem* child : item->childItems())
        if (QQuickItem* found = itemWith(child, property))
            return found;
    return nullptr;
}

/// Every screen, each a step on from the one before it.
QList<Picture> screens(QQuickWindow& window, RootView& root, ManagedObjectContext& context) {
    OnboardingView& onboarding = *root.onboarding();
    ContentView& content = *root.content();
    const auto turnPage = [&] { onboarding.next(); };
    const auto set = [&](const char* property, const QVariant& value) {
        settle();
        if (QQuickItem* item = itemWith(window.contentItem(), property))
            item->setProperty(property, value);
    };
    const auto call = [&](const char* property, const char* method) {
        settle();
        QMetaObject::invokeMethod(itemWith(window.contentItem(), property), method);
    };
    return {
        {"onboarding-1", [] {}},
        {"onboarding-2", turnPage},
        {"onboarding-3", turnPage},
        {"onboarding-4", turnPage},
        {"empty-store", turnPage},
        {"current-month", [&] { addSampleData(context); }},
        {"three-months", [&] { content.select(2); }},
        {"twelve-months", [&] { content.select(3); }},
        {"rating-prompt", [&] { StoreReviewController::requestReview(window); }},
        {"new-transaction",
         [&] {
             StoreReviewController::shared().dismiss();
             content.setShowAddTransaction(true);
         }},
        {"emoji", [set] { set("choosesEmoji", true); }},
        {"emoji-search", [set] { set("query", QStringLiteral("car")); }},
        {"calendar",
         [set, call] {
             set("choosesEmoji", false);
             call("unfolded", "toggle");
         }},
        {"recurring-transaction", [&] { content.addForm()->setIsRecurring(true); }},
        {"transactions",
         [&] {
             content.setShowAddTransaction(false);
             content.setShowTransactions(true);
         }},
        {"swiped-row", [set] { set("offset", 100); }},
        {"edit-transaction",
         [set, call] {
             set("offset", 0);
             call("offset", "clicked");
         }},
    };
}

} // namespace

bool drawPictures(QQuickWindow& window, RootView& root, ManagedObjectContext& context,
                  const QList<ColorScheme>& appearances, const QString& folder) {
    QDir().mkpath(folder);
    window.setProperty("reducedMotion", true);
    bool wroteAll = true;
    for (const Picture& picture : screens(window, root, context)) {
        picture.arrange();
        for (const QSize& size : sizes)
            for (const ColorScheme appearance : appearances) {
                window.resize(size);
                SystemColors::shared().setColorScheme(appearance);
                settle();
                const auto file =
                    QStringLiteral("%1-%2x%3-%4.png")
                        .arg(QLatin1String(picture.name))
                        .arg(size.width())
                        .arg(size.height())
                        .arg(QLatin1String(appearance == ColorScheme::dark ? "dark" : "light"));
                const QString path = QDir(folder).absoluteFilePath(file);
                const bool wrote = window.grabWindow().save(path);
                std::printf("%s\n", qPrintable(wrote ? path : u"cannot write " + path));
                wroteAll = wroteAll && wrote;
            }
    }
    return wroteAll;
}

} // namespace kovamo
