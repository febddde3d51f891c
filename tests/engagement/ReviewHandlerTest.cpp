#include "engagement/ReviewHandler.h"
#include "platform/desktop/StoreReviewController.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/UserDefaults.h"
#include "support/FastQueue.h"
#include "support/World.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QUrl>
#include <fstream>

namespace kovamo {
namespace {

using namespace std::chrono_literals;

const QString countKey = QStringLiteral("appStartUpsCountKey");
const QString versionKey = QStringLiteral("lastVersionPromptedForReviewKey");

class ReviewHandlerTest : public testing::Test {
  protected:
    ReviewHandlerTest() {
        m_controller.setSheetPresented(false);
        m_window.show();
        m_window.requestActivate();
        QCoreApplication::processEvents();
    }

    // Whether the platform shows its prompt when asked; it is sent away then.
    bool prompts() {
        StoreReviewController::requestReview(m_window);
        const bool shown = m_controller.scene() == &m_window;
        m_controller.dismiss();
        return shown;
    }

    FastQueue m_queue;
    QWindow m_window;
    StoreReviewController& m_controller = StoreReviewController::shared();
};

TEST_F(ReviewHandlerTest, AsksFromTheFourthStartUpUnlessThisBuildHasAsked) {
    const std::tuple<std::int64_t, const char*, std::size_t> cases[] = {
        {0, "", 0},   {2, "", 0},    {3, "", 1},    {4, "", 1},     {2, "16", 0},
        {3, "17", 0}, {10, "16", 1}, {10, "17", 0}, {10, "017", 1},
    };
    for (const auto& [count, lastVersion, scheduled] : cases) {
        m_queue.clear();
        UserDefaults::standard().set(countKey, count);
        UserDefaults::standard().set(versionKey, QString::fromLatin1(lastVersion));
        ReviewHandler::requestReviewIfAppropriate();
        EXPECT_EQ(m_queue.size(), scheduled) << count << " " << lastVersion;
        UserDefaults::reopenStandard();
        EXPECT_EQ(UserDefaults::standard().integer(countKey), count + 1);
        EXPECT_EQ(UserDefaults::standard().string(versionKey), lastVersion);
    }
}

TEST_F(ReviewHandlerTest, AsksNobodyWhoIsGone) {
    UserDefaults::standard().set(countKey, std::int64_t{4});
    ReviewHandler::requestReviewIfAppropriate();
    m_window.hide();
    QCoreApplication::processEvents();
    m_queue.advance(2s);
    EXPECT_EQ(m_controller.scene(), nullptr);
}

TEST_F(ReviewHandlerTest, StopsWithoutABuildVersionAndAtTheLastCount) {
    Bundle::main().setInfoDictionary({{kCFBundleVersionKey, 17}});
    EXPECT_DEATH(ReviewHandler::requestReviewIfAppropriate(),
                 "Expected to find a bundle version in the info dictionary");
    UserDefaults::standard().set(countKey, INT64_MAX);
    EXPECT_DEATH(ReviewHandler::requestReviewIfAppropriate(), "overflow: 9223372036854775807");
}

TEST_F(ReviewHandlerTest, ThePlatformPromptsThriceInAYearAndNeverOverASheet) {
    m_controller.setSheetPresented(true);
    EXPECT_FALSE(prompts());
    m_controller.setSheetPresented(false);
    const std::pair<const char*, bool> asked[] = {
        {"2024-05-15 10:00", true},         {"2024-08-01 10:00", true},
        {"2024-08-01 10:00", true},         {"2024-08-01 10:00", false},
        {"2025-05-15 09:59:59.999", false}, {"2025-05-15 10:00", true},
        {"2025-05-15 10:00", false},        {"2024-01-01", false},
    };
    for (const auto& [time, shown] : asked) {
        World::setTime(time);
        UserDefaults::reopenStandard();
        EXPECT_EQ(prompts(), shown) << time;
    }
    World::setTime("2026-08-01");
    StoreReviewController::requestReview(m_window);
    m_controller.setSheetPresented(true);
    EXPECT_EQ(m_controller.scene(), nullptr) << "a sheet sends it away";
}

class SoftwareCentre : public QObject {
    Q_OBJECT

  public:
    SoftwareCentre() { QDesktopServices::setUrlHandler(QStringLiteral("appstream"), this, "open"); }
    ~SoftwareCentre() override { QDesktopServices::unsetUrlHandler(QStringLiteral("appstream")); }
    Q_SLOT void open(const QUrl& url) { opened = url; }

    QUrl opened;
};

TEST_F(ReviewHandlerTest, StarsLeadToTheSoftwareCentreOrToThanks) {
    const SoftwareCentre centre;
    const QDir folder(World::folder());
    qputenv("XDG_DATA_DIRS", folder.path().toUtf8());
    StoreReviewController::requestReview(m_window);
    m_controller.rate(4);
    EXPECT_EQ(m_controller.stars(), 4);
    EXPECT_TRUE(centre.opened.isEmpty());
    m_queue.advance(1min);
    EXPECT_EQ(m_controller.scene(), nullptr);

    folder.mkpath(QStringLiteral("applications"));
    std::ofstream(folder.filePath(QStringLiteral("applications/mimeinfo.cache")).toStdString())
        << "[MIME Cache]\nx-scheme-handler/appstream=centre.desktop;\n";
    StoreReviewController::requestReview(m_window);
    m_controller.rate(4);
    EXPECT_EQ(m_controller.scene(), nullptr);
    EXPECT_EQ(centre.opened.toString(), "appstream:org.example.App");
}

} // namespace
} // namespace kovamo

#include "ReviewHandlerTest.moc"
