#include "RunningApp.h"

#include "app/KovamoApp.h"
#include "platform/foundation/UserDefaults.h"

#include <QCoreApplication>
#include <QElapsedTimer>

namespace kovamo {

namespace {

// Longer than any animation of the app.
constexpr int restMilliseconds = 700;

std::unique_ptr<PersistentContainer> loaded() {
    KovamoApp::describe();
    auto container =
        std::make_unique<PersistentContainer>(QStringLiteral("Kovamo"), Transaction::entity());
    container->loadPersistentStores([](const StoreError* error) {
        if (error)
            unresolvedError(*error);
    });
    container->viewContext().setAutomaticallyMergesChangesFromParent(true);
    return container;
}

} // namespace

void makeStore(const QTemporaryDir& folder, const Ledger& ledger) {
    KovamoApp::describe();
    for (const char* variable : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
        qputenv(variable, folder.path().toLocal8Bit());
    UserDefaults::reopenStandard();
    UserDefaults::standard().set(RootView::onboardingFinishedKey(), true);
    fill(loaded()->storePath(), ledger);
}

RunningApp::RunningApp() : m_container(loaded()) {
    m_plain = std::make_unique<PlainLoop>(m_container->storePath());
    m_root = std::make_unique<RootView>(m_container->viewContext());
    m_engine = std::make_unique<QQmlEngine>();
    m_window = KovamoApp::showWindow(*m_engine, *m_root);
    m_window->resize(390, 844);
    showFrame();
}

QQuickItem& RunningApp::list() {
    QList<QQuickItem*> items{m_window->contentItem()};
    QQuickItem* found = nullptr;
    while (!items.isEmpty()) {
        QQuickItem* item = items.takeFirst();
        if (item->isVisible() && item->inherits("QQuickListView"))
            found = item;
        items.append(item->childItems());
    }
    return *found;
}

void RunningApp::layOut() {
    QCoreApplication::sendPostedEvents();
    list().ensurePolished();
}

void RunningApp::showFrame() {
    bool isShown = false;
    const auto connection = QObject::connect(m_window.get(), &QQuickWindow::frameSwapped,
                                             m_window.get(), [&isShown] { isShown = true; });
    m_window->update();
    while (!isShown)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QObject::disconnect(connection);
}

void RunningApp::settle() {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < restMilliseconds)
        showFrame();
}

} // namespace kovamo
