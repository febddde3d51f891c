#include "platform/foundation/UserDefaults.h"
#include "support/World.h"

#include <QDir>
#include <QFileInfo>
#include <fstream>
#include <gtest/gtest.h>

namespace kovamo {
namespace {

const QString key = QStringLiteral("appStartUpsCountKey");

// The preferences' file, in its folder.
QString preferences(const World& world) {
    const QString folder = world.folder() + QStringLiteral("/xdg_config_home/Kovamo");
    QDir().mkpath(folder);
    return folder + QStringLiteral("/Kovamo.conf");
}

TEST(UserDefaults, ReadsWhatOtherProgramsWroteAndDistrustsIt) {
    struct Case {
        const char* content;
        std::int64_t number;
        std::size_t lines;
    };
    const Case cases[] = {
        {"appStartUpsCountKey=7\n", 7, 0},
        {"[General]\nappStartUpsCountKey=7\n", 7, 0},
        {"appStartUpsCountKey=\"7\"\n[Else]\nappStartUpsCountKey=3\n", 7, 0},
        {"appStartUpsCountKey=9223372036854775807\n", INT64_MAX, 0},
        {"appStartUpsCountKey=9223372036854775808\n", 0, 0},
        {"appStartUpsCountKey=seven\n", 0, 0},
        {"appStartUpsCountKey=7,8\n", 0, 0},
        {"appStartUpsCountKey=7\n[Else\n", 0, 1},
        {"\xff\xfe no preferences", 0, 1},
    };
    for (const Case& each : cases) {
        const World world("2024-05-15 10:00");
        std::ofstream(preferences(world).toStdString()) << each.content;
        testing::internal::CaptureStderr();
        UserDefaults defaults;
        EXPECT_EQ(defaults.integer(key), each.number) << each.content;
        defaults.set(key, std::int64_t{8});
        defaults.set(key, std::int64_t{9});
        const std::string output = testing::internal::GetCapturedStderr();
        EXPECT_EQ(std::count(output.begin(), output.end(), '\n'), each.lines) << output;
        EXPECT_EQ(UserDefaults().integer(key), 9) << each.content;
    }
}

TEST(UserDefaults, KeepsEveryKindForTheNextStartInAFolderOfItsOwner) {
    const World world("2024-05-15 10:00");
    const QString text = QString::fromUtf8("1, 2; \"ü\" = [General]");
    UserDefaults& defaults = UserDefaults::standard();
    EXPECT_FALSE(defaults.boolean(QStringLiteral("flag")));
    EXPECT_EQ(defaults.string(QStringLiteral("text")), std::nullopt);
    defaults.set(QStringLiteral("flag"), true);
    defaults.set(QStringLiteral("text"), text);
    UserDefaults::reopenStandard();
    EXPECT_TRUE(UserDefaults::standard().boolean(QStringLiteral("flag")));
    EXPECT_EQ(UserDefaults::standard().string(QStringLiteral("text")), text);
    const QFileInfo folder(world.folder() + QStringLiteral("/xdg_config_home/Kovamo"));
    EXPECT_EQ(folder.permissions() & 0x0077, 0);
}

} // namespace
} // namespace kovamo
