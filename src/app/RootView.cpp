#include "RootView.h"

#include "engagement/ReviewHandler.h"
#include "model/TransactionRefresh.h"
#include "platform/foundation/Locale.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/UserDefaults.h"

#include <QGuiApplication>
#include <utility>

namespace kovamo {

namespace {

constexpr int onboardingPages = 4;

} // namespace

RootView::RootView(ManagedObjectContext& viewContext, WayBack* wayBack)
    : m_today(Calendar().today()),
      m_onboardingFinished(UserDefaults::standard().boolean(onboardingFinishedKey())),
      m_onboarding(onboardingPages),
      m_content(viewContext, &ReviewHandler::requestReviewIfAppropriate), m_wayBack(wayBack) {
    connect(&m_onboarding, &OnboardingView::finished, this, &RootView::finishOnboarding);
    connect(&m_dayTimer, &QTimer::timeout, this, &RootView::showToday);
    m_dayTimer.setTimerType(Qt::VeryCoarseTimer);
    m_dayTimer.start(std::chrono::minutes(1));
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive)
                    showToday();
            });
}

QString RootView::onboardingFinishedKey() {
    return QStringLiteral("onboardingFinished");
}

void RootView::perform(const Start& start) {
    if (m_onboardingFinished && !m_content.isCovered()) {
        m_content.setShowAddTransaction(start.action == StartAction::newTransaction);
        m_content.setShowTransactions(start.action == StartAction::allTransactions);
    }
    if (!start.file.isEmpty())
        m_content.importFrom(start.file);
}

bool RootView::isMirrored() {
    return dateLocale().isRightToLeft();
}

void RootView::finishOnboarding() {
    m_onboardingFinished = true;
    UserDefaults::standard().set(onboardingFinishedKey(), true);
    Q_EMIT onboardingFinishedChanged();
}

void RootView::showToday() {
    const bool isElsewhere = followHostTimeZone();
    const CalendarDay today = Calendar().today();
    if (std::exchange(m_today, today) != today || isElsewhere)
        NotificationCenter::defaultCenter().post(transactionRefresh());
}

} // namespace kovamo
