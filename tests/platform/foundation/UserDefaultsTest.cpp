#include "platform/foundation/UserDefaults.h"
#include "support/World.h"

#include <QDir>
#include <QFileInfo>
#include <fstream>

namespace kovamo {
namespace {

const QString key = QStringLiteral("appStartUpsCountKey");

// The folder of the preferences' file.
QString folder() {
    return World::folder() + u"/xdg_config_home/App";
}

TEST(UserDefaults, ReadsWhatOtherProgramsWroteAndDistrustsIt) {
    const std::tuple<const char*, std::int64_t, int> cases[] = {
        {"[General]\nappStartUpsCountKey=7\n", 7, 0},
        {"appStartUpsCountKey=\"7\"\n[Else]\nappStartUpsCountKey=3\n", 7, 0},
        {"appStartUpsCountKey=9223372036854775807\n", INT64_MAX, 0},
        {"appStartUpsCountKey=9223372036854775808\n", 0, 0},
        {"appStartUpsCountKey=seven\n", 0, 0},
        {"appStartUpsCountKey=7,8\n", 0, 0},
        {"appStartUpsCountKey=7\nbroken\nother=1\n", 7, 1},
        {"appStartUpsCountKey=7\n[Else\n", 7, 1},
        {"\xff\xfe no preferences", 0, 1},
    };
    for (const auto& [content, number, lines] : cases) {
        const World world;
        QDir().mkpath(folder());
        std::ofstream(folder().toStdString() + "/App.conf") << content;
        testing::internal::CaptureStderr();
        UserDefaults defaults;
        EXPECT_EQ(defaults.integer(key), number) << content;
        defaults.set(key, std::int64_t{8});
        defaults.set(key, std::int64_t{9});
        const std::string output = testing::internal::GetCapturedStderr();
        EXPECT_EQ(std::count(output.begin(), output.end(), '\n'), lines) << output;
        EXPECT_EQ(UserDefaults().integer(key), 9) << content;
        const QDir beside(folder());
        const QStringList broken = beside.entryList({QStringLiteral("App.conf.broken-*")});
        ASSERT_EQ(broken.size(), lines) << content;
        if (lines) {
            EXPECT_EQ(kovamo::content(beside.filePath(broken[0])), content);
        }
    }
}

TEST(UserDefaults, KeepsEveryKindForTheNextStartInAFolderOfItsOwner) {
    const QString text = QString::fromUtf8("1, 2; \"ü\" = [General]");
    UserDefaults& defaults = UserDefaults::standard();
    EXPECT_FALSE(defaults.boolean(QStringLiteral("flag")));
    EXPECT_EQ(defaults.string(QStringLiteral("text")), std::nullopt);
    defaults.set(QStringLiteral("flag"), true);
    defaults.set(QStringLiteral("text"), text);
    UserDefaults::reopenStandard();
    EXPECT_TRUE(UserDefaults::standard().boolean(QStringLiteral("flag")));
    EXPECT_EQ(UserDefaults::standard().string(QStringLiteral("text")), text);
    EXPECT_EQ(QFileInfo(folder()).permissions() & 0x0077, 0);
}

} // namespace
} // namespace kovamo
