#include "engagement/OnboardingView.h"
#include "platform/desktop/SystemColors.h"
#include "support/Stage.h"

#include <QSignalSpy>

namespace kovamo {
namespace {

// The onboarding in a window, its movements done at once.
struct Pages {
    explicit Pages(int count) : state(count) {}

    QPoint button() { return middle(stage.window()->activeFocusItem()); }

    QColor dot(int index) {
        const double below = stage.window()->activeFocusItem()->height() / 2 + 5 + 8;
        return stage.window()->grabWindow().pixelColor(button() +
                                                       QPoint(16 * index - 24, -int(below)));
    }

    // Waits until the pages rest at the current one.
    bool rests() {
        const double rest = state.currentPage() * 390;
        return Stage::soon([&] { return stage.get("contentX", "pages").toDouble() == rest; });
    }

    OnboardingView state;
    Stage stage{"property bool mirrored: false;"
                "OnboardingView { anchors.fill: parent; onboarding: subject;"
                " LayoutMirroring.enabled: mirrored; LayoutMirroring.childrenInherit: true }",
                true, "Kovamo.Engagement", &state};
};

TEST(Onboarding, ItsDotsFollowTheButtonAndTheFinger) {
    Pages pages(4);
    for (int page = 0; page < 4; ++page) {
        EXPECT_EQ(pages.state.currentPage(), page);
        EXPECT_EQ(pages.state.caption(), page < 3 ? "Next" : "Get Started");
        for (int index = 0; index < 4; ++index)
            EXPECT_EQ(pages.dot(index),
                      index == page ? SystemColors::shared().blue() : SystemColors::shared().gray())
                << page << " " << index;
        if (page < 3)
            pages.stage.click(pages.button());
    }
    for (const auto& [by, page] : {std::pair(300, 2), {-300, 3}}) {
        EXPECT_TRUE(pages.rests());
        pages.stage.drag({195 - by / 2, 300}, {by, 0});
        EXPECT_TRUE(Stage::soon([&, page = page] { return pages.state.currentPage() == page; }));
    }
}

TEST(Onboarding, KeepsItsPageInAnotherWidth) {
    for (const bool mirrored : {false, true}) {
        Pages pages(4);
        pages.stage.set("mirrored", mirrored);
        pages.state.setCurrentPage(2);
        for (const int width : {390, 320, 844, 391}) {
            pages.stage.set("width", width);
            EXPECT_TRUE(Stage::soon([&] {
                const auto* page = pages.stage.get("currentItem", "pages").value<QQuickItem*>();
                return page->width() == width && page->mapToScene({0, 0}).x() == 0;
            })) << mirrored
                << " " << width;
            EXPECT_EQ(pages.state.currentPage(), 2) << mirrored << " " << width;
        }
    }
}

TEST(Onboarding, TheKeyboardPagesBothWays) {
    Pages pages(2);
    const QSignalSpy finished(&pages.state, &OnboardingView::finished);
    const std::pair<Qt::Key, int> keys[] = {
        {Qt::Key_Left, 0},  {Qt::Key_Right, 1}, {Qt::Key_Right, 1},  {Qt::Key_Left, 0},
        {Qt::Key_Space, 1}, {Qt::Key_Left, 0},  {Qt::Key_Return, 1},
    };
    for (const auto& [key, page] : keys) {
        EXPECT_EQ(finished.size(), 0);
        pages.stage.press(key);
        EXPECT_EQ(pages.state.currentPage(), page) << key;
    }
    pages.stage.press(Qt::Key_Enter);
    EXPECT_EQ(finished.size(), 1);
}

TEST(Onboarding, EveryPageHasItsPictureInBothAppearancesAndAMissingOneIsQuietlyEmpty) {
    testing::internal::CaptureStderr();
    Pages pages(5);
    QList<QImage> seen;
    for (const ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
        SystemColors::shared().setColorScheme(scheme);
        for (int page = 0; page < 5; ++page) {
            pages.state.setCurrentPage(page);
            ASSERT_TRUE(pages.rests());
            const QImage picture = pages.stage.window()->grabWindow().copy(0, 0, 390, 690);
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

} // namespace
} // namespace kovamo
