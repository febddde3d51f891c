#include "support/Book.h"
#include "support/Server.h"

#include <QDBusConnection>
#include <QDir>
#include <QTest>
#include <fstream>

namespace kovamo {
namespace {

/// The desktop's service, as far as the app calls it.
class Notifications : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

  public:
    QString shown;

  public Q_SLOTS:
    uint Notify(const QString&, uint, const QString&, const QString& summary, const QString& body,
                const QStringList&, const QVariantMap&, int) {
        shown = summary + u": " + body;
        return 1;
    }
};

TEST(FatalError, IsShownByTheDesktopAndLeavesNoCore) {
    const Book book({{300, "2024-05-15", "monthly", "2100-01-01"}});
    const QString config = World::folder() + u"/xdg_config_home/Kovamo";
    QDir().mkpath(config);
    std::ofstream(config.toStdString() + "/Kovamo.conf") << "onboardingFinished=true\n";
    book.elsewhere("UPDATE \"Transaction\" SET title = NULL");
    const Server session{"dbus-daemon", Server::bus()};
    QDBusConnection bus = QDBusConnection::connectToBus(session.address, QStringLiteral("desktop"));
    Notifications desktop;
    EXPECT_TRUE(bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &desktop,
                                   QDBusConnection::ExportAllSlots));
    EXPECT_TRUE(bus.registerService(QStringLiteral("org.freedesktop.Notifications")));

    QProcess app;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", session.address);
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    app.setProcessEnvironment(environment);
    app.setWorkingDirectory(World::folder());
    app.start(QStringLiteral("sh"), {"-c", "ulimit -c unlimited; exec " KOVAMO_EXECUTABLE});
    EXPECT_TRUE(QTest::qWaitFor([&] { return app.state() == QProcess::NotRunning; }, 60000));
    EXPECT_EQ(app.exitStatus(), QProcess::CrashExit);
    const QString id = book.all().at(0)->id()->toString(QUuid::WithoutBraces);
    for (const QString& part :
         {id, QStringLiteral("title"), QStringLiteral("kovamo check"), book.container.storePath()})
        EXPECT_TRUE(desktop.shown.contains(part)) << part.toStdString();
    EXPECT_TRUE(app.readAllStandardError().contains("has no title"));
    EXPECT_TRUE(QDir(World::folder()).entryList({"core*"}, QDir::Files).isEmpty());
    QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
}

} // namespace
} // namespace kovamo

#include "FatalTest.moc"
