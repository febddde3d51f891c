#include "support/World.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace kovamo {
namespace {

TEST(SoleInstance, LeavesOneOfTwoStartsAndComesBackWhenThatIsKilled) {
    const World world("2024-05-15 10:00");
    qputenv("XDG_RUNTIME_DIR", world.folder().toUtf8());
    for (int round = 0; round < 2; ++round) {
        QProcess starts[2];
        for (QProcess& start : starts)
            start.start(QStringLiteral(KOVAMO_EXECUTABLE), QStringList());
        while (!starts[0].waitForFinished(50) && !starts[1].waitForFinished(50)) {
        }
        QProcess& shown = starts[starts[0].state() == QProcess::NotRunning];
        QProcess& ended = starts[&shown == &starts[0]];
        EXPECT_EQ(ended.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(ended.exitCode(), 0) << ended.readAllStandardError().toStdString();
        EXPECT_EQ(shown.state(), QProcess::Running) << "nobody shows the window";
        shown.kill();
        shown.waitForFinished();
    }
}

} // namespace
} // namespace kovamo
