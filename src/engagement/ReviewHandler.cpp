#include "ReviewHandler.h"

#include "platform/desktop/Scenes.h"
#include "platform/desktop/StoreReviewController.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/CheckedArithmetic.h"
#include "platform/foundation/MainQueue.h"
#include "platform/foundation/UserDefaults.h"

#include <algorithm>

namespace kovamo {

namespace {

constexpr std::int64_t firstStartUpThatAsks = 4;
constexpr std::chrono::seconds delay{2};

QString bundleVersion() {
    const QVariant version = Bundle::main().infoDictionary().value(kCFBundleVersionKey);
    if (version.typeId() != QMetaType::QString)
        fatalError(QStringLiteral("Expected to find a bundle version in the info dictionary"));
    return version.toString();
}

void requestReview() {
    const QList<Scene> scenes = connectedScenes();
    const auto active = std::find_if(scenes.begin(), scenes.end(), [](const Scene& scene) {
        return scene.activationState == ActivationState::foregroundActive;
    });
    if (active != scenes.end() && active->window)
        StoreReviewController::requestReview(*active->window);
}

} // namespace

void ReviewHandler::requestReviewIfAppropriate() {
    const QString countKey = QStringLiteral("appStartUpsCountKey");
    UserDefaults& defaults = UserDefaults::standard();
    const std::int64_t count = checkedAdd(defaults.integer(countKey), std::int64_t{1});
    defaults.set(countKey, count);

    const QString version = bundleVersion();
    // Nothing writes this key, on purpose: the platform alone limits how often a prompt shows.
    const auto lastPrompted = defaults.string(QStringLiteral("lastVersionPromptedForReviewKey"));
    if (count >= firstStartUpThatAsks && lastPrompted != version)
        MainQueue::asyncAfter(delay, requestReview);
}

} // namespace kovamo
