#include "engagement/ReviewHandler.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/ReviewController.h"
#include "platform/foundation/UserDefaults.h"
#include "support/FastQueue.h"
#include "support/World.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QUrl>
#include <QWindow>
#include <fstream>
#include <gtest/gtest.h>

namespace kovamo {
namespace {

using namespace std::chrono_literals;

const QString countKey = QStringLiteral("appStartUpsCountKey");

class ReviewHandlerTest : public testing::Test {
  protected:
    ReviewHandlerTest() {
        Bundle::main().setInfoDictionary({{kCFBundleVersionKey, QStringLiteral("17")}});
        ReviewController::shared().setSheetPresented(false);
        ReviewController::shared().dismiss();
    }

    // Shows the app's window, where the prompt may stand.
    void activate() {
        m_window.show();
        m_window.requestActivate();
        QCoreApplication::processEvents();
    }

    // Whether the platform shows its prompt when asked, which is then sent away.
    bool prompts() {
        ReviewController::requestReview(m_window);
        const bool shown = ReviewController::shared().scene() == &m_window;
        ReviewController::shared().dismiss();
        return shown;
    }

    World m_world{"2024-05-15 10:00"};
    FastQueue m_queue;
    QWindow m_window;
};

TEST_F(ReviewHandlerTest, AsksFromTheFourthStartUpUnlessThisBuildHasAsked) {
    struct Case {
        std::int64_t countBefore;
        const char* lastVersion;
        std::size_t scheduled;
    };
    const Case cases[] = {{0, nullptr, 0}, {1, nullptr, 0}, {2, nullptr, 0}, {3, nullptr, 1},
                          {4, nullptr, 1}, {10, "16", 1},   {10, "17", 0},   {3, "17", 0},
                          {10, "017", 1},  {2, "16", 0},    {10, "", 1}};
    for (const Case& each : cases) {
        const World world("2024-05-15 10:00");
        const FastQueue queue;
        UserDefaults& defaults = UserDefaults::standard();
        defaults.set(countKey, each.countBefore);
        const QString versionKey = QStringLiteral("lastVersionPromptedForReviewKey");
        if (each.lastVersion)
            defaults.set(versionKey, QString::fromLatin1(each.lastVersion));
        const auto versionBefore = defaults.string(versionKey);
        ReviewHandler::requestReviewIfAppropriate();
        EXPECT_EQ(queue.size(), each.scheduled) << each.countBefore;
        UserDefaults::reopenStandard();
        EXPECT_EQ(UserDefaults::standard().integer(countKey), each.countBefore + 1);
        EXPECT_EQ(UserDefaults::standard().string(versionKey), versionBefore);
    }
}

TEST_F(ReviewHandlerTest, FourStartUpsLeadToThePromptTwoSecondsLater) {
    activate();
    for (int start = 1; start <= 4; ++start) {
        UserDefaults::reopenStandard();
        EXPECT_EQ(m_queue.size(), 0U) << start;
        ReviewHandler::requestReviewIfAppropriate();
    }
    ReviewHandler::requestReviewIfAppropriate();
    EXPECT_EQ(m_queue.size(), 2U);
    m_queue.advance(1999ms);
    EXPECT_EQ(ReviewController::shared().scene(), nullptr);
    m_queue.advance(1ms);
    EXPECT_EQ(ReviewController::shared().scene(), &m_window);
}

TEST_F(ReviewHandlerTest, AsksNobodyWhenTheAppIsNotInFront) {
    UserDefaults::standard().set(countKey, std::int64_t{3});
    activate();
    ReviewHandler::requestReviewIfAppropriate();
    m_window.hide();
    QCoreApplication::processEvents();
    m_queue.advance(2s);
    EXPECT_EQ(ReviewController::shared().scene(), nullptr);
}

TEST_F(ReviewHandlerTest, StopsWithoutABuildVersionAndAtTheLastCount) {
    const QVariant wrong[] = {{}, 17};
    for (const QVariant& version : wrong) {
        Bundle::main().setInfoDictionary({{kCFBundleVersionKey, version}});
        EXPECT_DEATH(ReviewHandler::requestReviewIfAppropriate(),
                     "Expected to find a bundle version in the info dictionary");
    }
    UserDefaults::standard().set(countKey, INT64_MAX);
    EXPECT_DEATH(ReviewHandler::requestReviewIfAppropriate(), "overflow: 9223372036854775807");
}

TEST_F(ReviewHandlerTest, ThePlatformPromptsThriceInAYear) {
    EXPECT_TRUE(prompts());
    m_world.setTime("2024-08-01 10:00");
    EXPECT_TRUE(prompts());
    EXPECT_TRUE(prompts());
    EXPECT_FALSE(prompts());
    UserDefaults::reopenStandard();
    m_world.setTime("2025-05-15 09:59:59.999");
    EXPECT_FALSE(prompts());
    m_world.setTime("2025-05-15 10:00");
    EXPECT_TRUE(prompts());
    EXPECT_FALSE(prompts());
    m_world.setTime("2024-01-01");
    EXPECT_FALSE(prompts()) << "the clock set back";
}

TEST_F(ReviewHandlerTest, ASheetKeepsThePromptAwayWithoutSpendingIt) {
    ReviewController& controller = ReviewController::shared();
    controller.setSheetPresented(true);
    for (int i = 0; i < 4; ++i)
        EXPECT_FALSE(prompts());
    controller.setSheetPresented(false);
    ReviewController::requestReview(m_window);
    EXPECT_EQ(controller.scene(), &m_window);
    controller.setSheetPresented(true);
    EXPECT_EQ(controller.scene(), nullptr);
}

class SoftwareCentre : public QObject {
    Q_OBJECT

  public:
    SoftwareCentre() { QDesktopServices::setUrlHandler(QStringLiteral("appstream"), this, "open"); }
    ~SoftwareCentre() override { QDesktopServices::unsetUrlHandler(QStringLiteral("appstream")); }

    Q_SLOT void open(const QUrl& url) { m_opened.append(url.toString()); }

    QStringList m_opened;
};

TEST_F(ReviewHandlerTest, StarsLeadToTheSoftwareCentreOrToThanks) {
    const SoftwareCentre centre;
    ReviewController& controller = ReviewController::shared();
    qputenv("XDG_DATA_DIRS", m_world.folder().toUtf8());
    ReviewController::requestReview(m_window);
    controller.rate(4);
    EXPECT_TRUE(controller.isThanking());
    m_queue.advance(1min);
    EXPECT_EQ(controller.scene(), nullptr);
    EXPECT_EQ(centre.m_opened, QStringList());

    QDir().mkpath(m_world.folder() + QStringLiteral("/applications"));
    std::ofstream(m_world.folder().toStdString() + "/applications/mimeinfo.cache")
        << "[MIME Cache]\nx-scheme-handler/appstream=centre.desktop;\n";
    ReviewController::requestReview(m_window);
    controller.rate(4);
    EXPECT_EQ(controller.scene(), nullptr);
    EXPECT_EQ(centre.m_opened, QStringList(QStringLiteral("appstream:org.kovamo.Kovamo")));
}

} // namespace
} // namespace kovamo

#include "ReviewHandlerTest.moc"
