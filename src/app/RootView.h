#pragma once

#include "StartAction.h"
#include "WayBack.h"
#include "dashboard/ContentView.h"
#include "engagement/OnboardingView.h"
#include "platform/foundation/Calendar.h"

#include <QObject>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

namespace kovamo {

/// What the window shows: the onboarding until the user has finished it once, the main screen from
/// then on, also at later starts. When the user comes back to the app on another day, or in another
/// time zone, the screens are loaded anew.
class RootView : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(RootState)
    QML_UNCREATABLE("Made by the app")
    Q_PROPERTY(bool onboardingFinished READ onboardingFinished NOTIFY onboardingFinishedChanged)
    Q_PROPERTY(kovamo::OnboardingView* onboarding READ onboarding CONSTANT)
    Q_PROPERTY(kovamo::ContentView* content READ content CONSTANT)
    Q_PROPERTY(kovamo::WayBack* wayBack READ wayBack CONSTANT)
    Q_PROPERTY(bool mirrored READ isMirrored CONSTANT)

  public:
    /// `wayBack` is shown over the main screen. Requires: both outlive the view.
    explicit RootView(ManagedObjectContext& viewContext, WayBack* wayBack = nullptr);

    [[nodiscard]] bool onboardingFinished() const { return m_onboardingFinished; }
    [[nodiscard]] OnboardingView* onboarding() { return &m_onboarding; }
    [[nodiscard]] ContentView* content() { return &m_content; }
    [[nodiscard]] WayBack* wayBack() const { return m_wayBack; }

    /// Does what a start of the app asks for. A file comes in over an open sheet, and once the
    /// onboarding is finished; of the screens none opens before or over a sheet, for what is typed
    /// there is not to be lost.
    void perform(const Start& start);

    /// The key of the preferences' flag that the onboarding was finished.
    [[nodiscard]] static QString onboardingFinishedKey();

    /// Whether the user's language runs from right to left, and the screens with it.
    [[nodiscard]] static bool isMirrored();

  Q_SIGNALS:
    void onboardingFinishedChanged();

  private:
    void finishOnboarding();
    void showToday();

    CalendarDay m_today;
    QTimer m_dayTimer;
    bool m_onboardingFinished;
    OnboardingView m_onboarding;
    ContentView m_content;
    WayBack* m_wayBack;
};

} // namespace kovamo
