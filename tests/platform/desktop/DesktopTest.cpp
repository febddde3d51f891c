#include "platform/desktop/DesktopSettings.h"
#include "platform/desktop/FileChooser.h"
#include "platform/desktop/TextInput.h"
#include "support/Server.h"
#include "support/Stage.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
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

    Server server{"dbus-daemon", Server::bus()};
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

/// Answers each question before its call returns.
class FilePortal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")
  public Q_SLOTS:
    QDBusObjectPath OpenFile(const QString&, const QString&, const QVariantMap& options) {
        const QString path = u"/org/freedesktop/portal/desktop/request/" +
                             message().service().mid(1).replace('.', '_') + '/' +
                             options["handle_token"].toString();
        QDBusMessage response = QDBusMessage::createSignal(
            path, QStringLiteral("org.freedesktop.portal.Request"), "Response");
        const QVariantMap results{{"uris", QStringList{"file:///a%20b.csv"}}};
        connection().send(response << 0U << results);
        return QDBusObjectPath(path);
    }
    QDBusObjectPath SaveFile(const QString& window, const QString& title,
                             const QVariantMap& options) {
        return OpenFile(window, title, options);
    }
};

TEST(FileChooser, TellsWhatIsChosen) {
    FilePortal portal;
    Bus bus(QStringLiteral("org.freedesktop.portal.Desktop"),
            QStringLiteral("/org/freedesktop/portal/desktop"), portal);
    FileChooser chooser(bus.app);
    QString told;
    QObject::connect(&chooser, &FileChooser::opened, [&](auto& path) { told += u"read " + path; });
    QObject::connect(&chooser, &FileChooser::saved, [&](auto& path) { told += u"write " + path; });
    chooser.open(QStringLiteral("Import"));
    EXPECT_TRUE(Stage::soon([&] { return told == u"read /a b.csv"; })) << qPrintable(told);
    told.clear();
    chooser.save(QStringLiteral("Export"), QStringLiteral("x.csv"));
    EXPECT_TRUE(Stage::soon([&] { return told == u"write /a b.csv"; })) << qPrintable(told);
}

/// What an input method sends, without a compositor to bring it.
class InputMethod : public TextInput {
  public:
    void send(const char* preedit, const char* commit, uint32_t before = 0, uint32_t after = 0) {
        zwp_text_input_v3_preedit_string(preedit, 0, 0);
        zwp_text_input_v3_commit_string(commit);
        zwp_text_input_v3_delete_surrounding_text(before, after);
        zwp_text_input_v3_done(0);
    }
};

TEST(TextInput, WritesWhatAnInputMethodSends) {
    InputMethod method;
    Stage stage(R"(
        FormTextField { id: one; objectName: "one"; width: 300; onEdited: text => one.text = text }
        FormTextField { objectName: "other"; width: 300; y: 100 })",
                true, "Kovamo.Forms");
    const auto text = [&] { return stage.item("one")->property("text").toString(); };
    method.send("", "lost");
    stage.click(stage.item("one"));
    method.send("", "a\u20AC\U0001F355b");
    EXPECT_EQ(text(), u"a\u20AC\U0001F355b") << "nothing had the focus before";
    stage.press(Qt::Key_Left);
    method.send("", "c", 4, 1);
    EXPECT_EQ(text(), u"a\u20ACc") << "the lengths are in bytes of UTF-8";
    method.send("", "", 99, 99);
    method.send("ni", "");
    EXPECT_EQ(text(), u"") << "the text before it is confirmed is the field's to show alone";
    method.send("", "\u4F60");
    method.send("hao", "");
    stage.click(stage.item("other"));
    EXPECT_EQ(text(), u"\u4F60hao") << "the tap elsewhere keeps it";
}

} // namespace
} // namespace kovamo

#include "DesktopTest.moc"
