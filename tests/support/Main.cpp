#include "World.h"

#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>

namespace {

/// Lets every test begin in a world of its own.
class Beginnings : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { m_world.emplace(); }
    void OnTestEnd(const testing::TestInfo&) override { m_world.reset(); }

    std::optional<kovamo::World> m_world;
};

} // namespace

int main(int argc, char** argv) {
    // What tests leave, and the programs that they start and kill, goes with this process.
    const QTemporaryDir scratch(QDir::tempPath() + QStringLiteral("/test-XXXXXX"));
    for (const char* variable : {"TMPDIR", "XDG_RUNTIME_DIR"})
        qputenv(variable, scratch.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    testing::InitGoogleTest(&argc, argv);
    // Under emulation, where a program cannot start itself anew, the variable says "fast".
    if (!qEnvironmentVariableIsSet("GTEST_DEATH_TEST_STYLE"))
        testing::GTEST_FLAG(death_test_style) = "threadsafe";
    testing::UnitTest::GetInstance()->listeners().Append(new Beginnings);
    const QGuiApplication app(argc, argv);
    const kovamo::World world; // of a death test's process, in which no listener is told
    return RUN_ALL_TESTS();
}
