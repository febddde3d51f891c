#include "engagement/OnboardingView.h"
#include "platform/foundation/SystemColors.h"
#include "support/World.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QSignalSpy>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>
#include <gtest/gtest.h>
#include <memory>

Q_IMPORT_QML_PLUGIN(Kovamo_FoundationPlugin)
Q_IMPORT_QML_PLUGIN(Kovamo_ControlsPlugin)
Q_IMPORT_QML_PLUGIN(Kovamo_EngagementPlugin)

namespace kovamo {
namespace {

// The onboarding in a window, its movements done at once.
class OnboardingTest : public testing::Test {
  protected:
    void show(int pages) {
        m_state = std::make_unique<OnboardingView>(pages);
        m_view.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
        m_component.setData("import QtQml; import Kovamo.Controls; import Kovamo.Engagement;"
                            "OnboardingView { Component.onCompleted: Motion.reduced = true }",
                            {});
        QObject* root = m_component.createWithInitialProperties(
            {{QStringLiteral("onboarding"), QVariant::fromValue(m_state.get())}});
        ASSERT_TRUE(root) << m_component.errorString().toStdString();
        m_view.setResizeMode(QQuickView::SizeRootObjectToView);
        m_view.setContent({}, &m_component, root);
        m_view.resize(400, 600);
        m_view.show();
        m_view.requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_view));
        ASSERT_TRUE(m_view.activeFocusItem());
    }

    QColor dot(int index) {
        const double bottom = 600 - 40 - m_view.activeFocusItem()->height() - 5;
        return m_view.grabWindow().pixelColor(176 + index * 16, static_cast<int>(bottom) - 8);
    }

    void click() { QTest::mouseClick(&m_view, Qt::LeftButton, {}, {200, 540}); }

    // Waits until the pages rest at the current one.
    bool rests() {
        const auto* pages = m_view.rootObject()->findChild<QQuickItem*>(QStringLiteral("pages"));
        const double rest = m_state->currentPage() * pages->width();
        return QTest::qWaitFor([&] { return pages->property("contentX").toDouble() == rest; });
    }

    void swipe(int from, int to) {
        ASSERT_TRUE(rests());
        QTest::mousePress(&m_view, Qt::LeftButton, {}, {from, 300});
        for (int x = from; x != to; x += from < to ? 30 : -30)
            QTest::mouseMove(&m_view, {x, 300});
        QTest::mouseRelease(&m_view, Qt::LeftButton, {}, {to, 300});
    }

    const World m_world{"2024-05-15 10:00"};
    std::unique_ptr<OnboardingView> m_state;
    QQuickView m_view;
    QQmlComponent m_component{m_view.engine()};
};

TEST_F(OnboardingTest, ItsDotsFollowTheButtonAndTheFinger) {
    show(4);
    const QColor blue = SystemColors::shared().blue();
    const QColor gray = SystemColors::shared().gray();
    for (int page = 0; page < 4; ++page) {
        EXPECT_EQ(m_state->currentPage(), page);
        EXPECT_EQ(m_state->caption(), page < 3 ? "Next" : "Get Started");
        for (int index = 0; index < 4; ++index)
            EXPECT_EQ(dot(index), index == page ? blue : gray) << page << " " << index;
        if (page < 3)
            click();
    }
    swipe(50, 350);
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_state->currentPage() == 2; }));
    EXPECT_EQ(m_state->caption(), "Next");
    swipe(350, 50);
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_state->currentPage() == 3; }));
}

TEST_F(OnboardingTest, TheKeyboardPagesBothWays) {
    show(2);
    QSignalSpy finished(m_state.get(), &OnboardingView::finished);
    const std::pair<Qt::Key, int> keys[] = {
        {Qt::Key_Left, 0},  {Qt::Key_Right, 1}, {Qt::Key_Right, 1},  {Qt::Key_Left, 0},
        {Qt::Key_Space, 1}, {Qt::Key_Left, 0},  {Qt::Key_Return, 1},
    };
    for (const auto& [key, page] : keys) {
        EXPECT_EQ(finished.size(), 0);
        QTest::keyClick(&m_view, key);
        EXPECT_EQ(m_state->currentPage(), page) << key;
    }
    QTest::keyClick(&m_view, Qt::Key_Enter);
    EXPECT_EQ(finished.size(), 1);
}

TEST_F(OnboardingTest, EveryPageHasItsPictureInBothAppearancesAndAMissingOneIsQuietlyEmpty) {
    testing::internal::CaptureStderr();
    show(5);
    QList<QImage> seen;
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
        SystemColors::shared().setColorScheme(scheme);
        for (int page = 0; page < 5; ++page) {
            m_state->setCurrentPage(page);
            ASSERT_TRUE(rests());
            const QImage picture = m_view.grabWindow().copy(0, 0, 400, 450);
            EXPECT_FALSE(seen.contains(picture)) << page;
            seen.append(picture);
        }
        QImage empty(seen.last());
        empty.fill(SystemColors::shared().background());
        EXPECT_EQ(seen.last(), empty);
    }
    SystemColors::shared().setColorScheme(ColorScheme::light);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(OnboardingState, HasNoNegativeNumberOfPages) {
    EXPECT_DEATH(OnboardingView(-1), "-1 pages");
}

} // namespace
} // namespace kovamo
