#include "RootView.h"

#include "engagement/ReviewHandler.h"
#include "platform/foundation/Locale.h"
#include "platform/foundation/UserDefaults.h"

namespace kovamo {

namespace {

constexpr int onboardingPages = 4;

} // namespace

RootView::RootView(ManagedObjectContext& viewContext)
    : m_onboardingFinished(UserDefaults::standard().boolean(onboardingFinishedKey())),
      m_onboarding(onboardingPages),
      m_content(viewContext, &ReviewHandler::requestReviewIfAppropriate) {
    connect(&m_onboarding, &OnboardingView::finished, this, &RootView::finishOnboarding);
}

QString RootView::onboardingFinishedKey() {
    return QStringLiteral("onboardingFinished");
}

bool RootView::isMirrored() {
    return dateLocale().isRightToLeft();
}

void RootView::finishOnboarding() {
    m_onboardingFinished = true;
    UserDefaults::standard().set(onboardingFinishedKey(), true);
    Q_EMIT onboardingFinishedChanged();
}

} // namespace kovamo
