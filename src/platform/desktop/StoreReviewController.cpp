#include "StoreReviewController.h"

#include "platform/foundation/Bundle.h"
#include "platform/foundation/Clock.h"
#include "platform/foundation/MainQueue.h"
#include "platform/foundation/UserDefaults.h"

#include <QDesktopServices>
#include <QFile>
#include <QJSEngine>
#include <QStandardPaths>
#include <QStringList>
#include <QUrl>
#include <algorithm>

namespace kovamo {

namespace {

constexpr int promptsPerYear = 3;
constexpr std::chrono::days year{365};
constexpr std::chrono::milliseconds thanksDuration{1800};

// The instants of the latest prompts, in ms since 1970 UTC, with spaces between.
QString promptTimesKey() {
    return QStringLiteral("platformReviewPromptTimesKey");
}

// The prompts of the last 365 days. Times in the future count too: otherwise setting the clock back
// would allow more prompts.
QStringList recentPrompts() {
    const Instant start = Clock::now() - year;
    QStringList times = UserDefaults::standard()
                            .string(promptTimesKey())
                            .value_or(QString())
                            .split(QLatin1Char(' '), Qt::SkipEmptyParts);
    times.removeIf([start](const QString& time) {
        return time.toLongLong() <= start.time_since_epoch().count();
    });
    return times;
}

// mimeinfo.cache lists which applications open which kind of address.
bool hasSoftwareCentre() {
    const QStringList caches = QStandardPaths::locateAll(QStandardPaths::ApplicationsLocation,
                                                         QStringLiteral("mimeinfo.cache"));
    return std::any_of(caches.begin(), caches.end(), [](const QString& path) {
        QFile cache(path);
        return cache.open(QFile::ReadOnly) &&
               cache.readAll().contains("\nx-scheme-handler/appstream=");
    });
}

} // namespace

StoreReviewController& StoreReviewController::shared() {
    static StoreReviewController controller;
    return controller;
}

StoreReviewController* StoreReviewController::create(QQmlEngine*, QJSEngine*) {
    StoreReviewController* controller = &shared();
    QJSEngine::setObjectOwnership(controller, QJSEngine::CppOwnership);
    return controller;
}

void StoreReviewController::present(QWindow& scene) {
    QStringList prompts = recentPrompts();
    if (m_scene || m_sheetPresented || prompts.size() >= promptsPerYear)
        return;
    prompts.append(QString::number(Clock::now().time_since_epoch().count()));
    UserDefaults::standard().set(promptTimesKey(), prompts.join(QLatin1Char(' ')));
    m_scene = &scene;
    Q_EMIT changed();
}

void StoreReviewController::setSheetPresented(bool presented) {
    if (presented == m_sheetPresented)
        return;
    m_sheetPresented = presented;
    if (presented)
        dismiss();
    Q_EMIT changed();
}

void StoreReviewController::rate(int stars) {
    if (!m_scene || m_stars > 0)
        return;
    // Without "//": QUrl would take the identifier for a host name and make it lower case.
    const QUrl page(u"appstream:" + Bundle::main().text(kCFBundleIdentifierKey));
    if (hasSoftwareCentre() && QDesktopServices::openUrl(page))
        return dismiss();
    m_stars = stars;
    Q_EMIT changed();
    MainQueue::asyncAfter(thanksDuration, [this] { dismiss(); });
}

void StoreReviewController::dismiss() {
    if (!m_scene)
        return;
    m_scene = nullptr;
    m_stars = 0;
    Q_EMIT changed();
}

} // namespace kovamo
