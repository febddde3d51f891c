#include "platform/desktop/DesktopSettings.h"
#include "platform/desktop/OnScreenKeyboard.h"
#include "support/Server.h"
#include "support/Stage.h"

#include <QDBusMessage>
#include <QDBusVariant>

namespace kovamo {
namespace {

/// A session bus of the test's own, to which the app and a service of the desktop are connected.
struct Bus {
    Bus(const QString& service, const QString& path, QObject& object) {
        desktop.registerService(service);
        desktop.registerObject(path, &object, QDBusConnection::ExportAllSlots);
    }
    ~Bus() {
        for (const char* name : {"app", "desktop"})
            QDBusConnection::disconnectFromBus(QString::fromLatin1(name));
    }

    Server server{"dbus-daemon", {"--session", "--print-address", "--nofork"}};
    QDBusConnection app = QDBusConnection::connectToBus(server.address, "app");
    QDBusConnection desktop = QDBusConnection::connectToBus(server.address, "desktop");
};

class Portal : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
  public Q_SLOTS:
    QDBusVariant Read(const QString&, const QString& key) {
        const QVariantMap values{
            {"color-scheme", 1U}, {"enable-animations", false}, {"text-scaling-factor", 1.25}};
        return QDBusVariant(QVariant::fromValue(QDBusVariant(values[key])));
    }
};

TEST(DesktopSettings, AreAskedForAndFollowed) {
    const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
    Portal portal;
    Bus bus(QStringLiteral("org.freedesktop.portal.Desktop"), path, portal);
    const DesktopSettings settings(true, bus.app);
    const auto become = [&](bool dark, bool reduced, double scale) {
        return Stage::soon([&] {
            return SystemColors::shared().isDark() == dark && settings.reducedMotion() == reduced &&
                   settings.textScale() == scale;
        });
    };
    EXPECT_TRUE(become(true, true, 1.25));
    const auto change = [&](const char* group, const char* key, const QVariant& value) {
        QDBusMessage signal = QDBusMessage::createSignal(
            path, QStringLiteral("org.freedesktop.portal.Settings"), "SettingChanged");
        bus.desktop.send(signal << group << key << QVariant::fromValue(QDBusVariant(value)));
    };
    change("org.freedesktop.appearance", "color-scheme", 0U);
    change("org.gnome.desktop.interface", "enable-animations", true);
    change("org.gnome.desktop.interface", "text-scaling-factor", 2.0);
    EXPECT_TRUE(become(false, false, 2));
}

class Keyboard : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "sm.puri.OSK0")
  public Q_SLOTS:
    void SetVisible(bool visible) { calls += visible ? '+' : '-'; }

  public:
    std::string calls;
};

TEST(OnScreenKeyboard, ComesAndGoesWithTheFieldThatHasTheFocus) {
    Keyboard keyboard;
    Bus bus(QStringLiteral("sm.puri.OSK0"), QStringLiteral("/sm/puri/OSK0"), keyboard);
    auto caller = std::make_unique<OnScreenKeyboard>(bus.app);
    Stage stage(R"(
        FormTextField { objectName: "first"; next: second; width: 300 }
        FormTextField { id: second; objectName: "second"; width: 300; y: 100 })",
                true, "Kovamo.Forms");
    const auto called = [&](const char* calls) {
        EXPECT_TRUE(Stage::soon([&] { return keyboard.calls == calls; })) << keyboard.calls;
    };
    stage.click(stage.item("first"));
    called("+");
    stage.press(Qt::Key_Return);
    stage.click(stage.item("second"));
    called("++");
    stage.press(Qt::Key_Return);
    called("++-");
    stage.click(stage.item("first"));
    called("++-+");
    caller.reset();
    called("++-+-");
    EXPECT_FALSE(OnScreenKeyboard::isCalledByApp()) << "only a phone's compositor shows one";
}

} // namespace
} // namespace kovamo

#include "DesktopTest.moc"
