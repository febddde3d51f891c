#include "Finger.h"
#include "support/Server.h"
#include "support/World.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDir>
#include <QImage>
#include <QStandardPaths>
#include <QTest>
#include <memory>

namespace kovamo {
namespace {

constexpr QSize upright(360, 720), turned(720, 360);
constexpr QPoint key1(110, 545);
constexpr QRgb white = 0xFFFFFFFF, accent = 0xFF007AFF, black = 0xFF000000, ground = 0xFFF2F2F7;

/// The app in a phone's shell: a compositor without a display, an on-screen keyboard, a finger.
class Phone : public testing::Test {
  protected:
    void SetUp() override {
        for (const char* program : {"dbus-daemon", "grim", "phoc", "squeekboard", "wlr-randr"})
            if (QStandardPaths::findExecutable(QString::fromLatin1(program)).isEmpty())
                GTEST_SKIP() << program << " is not installed";
        bus = std::make_unique<Server>("dbus-daemon", Server::bus());
        const QDir scratch(World::folder());
        const QString sockets = scratch.filePath("run");
        scratch.mkpath("run");
        scratch.mkpath("settings/glib-2.0/settings");
        QFile::setPermissions(sockets, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        write(scratch.filePath("phoc.ini"), "[core]\nxwayland=false\n");
        write(scratch.filePath("settings/glib-2.0/settings/keyfile"),
              "[org/gnome/desktop/a11y/applications]\nscreen-keyboard-enabled=true\n");
        const QMap<QString, QString> variables{{"DBUS_SESSION_BUS_ADDRESS", bus->address},
                                               {"GSETTINGS_BACKEND", "keyfile"},
                                               {"LC_ALL", "en_US.UTF-8"},
                                               {"QT_QPA_PLATFORM", "wayland"},
                                               {"WAYLAND_DISPLAY", "wayland-0"},
                                               {"WLR_BACKENDS", "headless"},
                                               {"WLR_LIBINPUT_NO_DEVICES", "1"},
                                               {"WLR_RENDERER", "pixman"},
                                               {"XDG_CONFIG_HOME", scratch.filePath("settings")},
                                               {"XDG_CURRENT_DESKTOP", "Phosh:GNOME"},
                                               {"XDG_RUNTIME_DIR", sockets}};
        for (auto variable = variables.begin(); variable != variables.end(); ++variable)
            environment.insert(variable.key(), variable.value());
        start(compositor, "phoc", {"-C", scratch.filePath("phoc.ini")});
        const QString socket = sockets + u"/wayland-0";
        ASSERT_TRUE(soon([&] { return QFile::exists(socket); })) << "phoc does not start";
        // The compositor refuses or drops the size while it is still setting up its screen.
        ASSERT_TRUE(soon([&] {
            run("wlr-randr", {"--output", "HEADLESS-1", "--custom-mode", "360x720"});
            return screen().size() == upright;
        }));
        // The keyboard needs a seat, and the compositor makes one for the first pointer.
        finger = std::make_unique<Finger>(qPrintable(socket));
        ASSERT_TRUE(finger->isThere());
        start(keyboard, "squeekboard", {});
        ASSERT_TRUE(soon([&] { return !keyboardShown().isEmpty(); })) << "no keyboard";
        // It may begin with room for keys that it does not show, until it has hidden some.
        const auto showsKey = [&] { return screen().pixel(key1) != black; };
        setKeyboardShown(true);
        ASSERT_TRUE(soon(showsKey));
        setKeyboardShown(false);
        ASSERT_TRUE(soon([&] { return !showsKey(); }));
        start(app, KOVAMO_EXECUTABLE, {"--demo"});
    }
    ~Phone() override {
        for (QProcess* process : {&app, &keyboard, &compositor}) {
            process->kill();
            process->waitForFinished();
        }
        QDBusConnection::disconnectFromBus("phone");
    }

    static bool soon(const std::function<bool()>& holds) { return QTest::qWaitFor(holds, 60000); }
    static void write(const QString& path, const char* content) {
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(content) > 0);
    }
    void start(QProcess& process, const char* program, const QStringList& arguments) {
        process.setProcessEnvironment(environment);
        process.start(QString::fromLocal8Bit(program), arguments);
    }
    QByteArray run(const char* program, const QStringList& arguments) {
        QProcess process;
        start(process, program, arguments);
        EXPECT_TRUE(process.waitForFinished()) << program;
        return process.readAllStandardOutput();
    }
    QImage screen() {
        return QImage::fromData(run("grim", {"-t", "ppm", "-"}))
            .convertToFormat(QImage::Format_RGB32);
    }
    void turn(const char* how) { run("wlr-randr", {"--output", "HEADLESS-1", "--transform", how}); }

    QDBusMessage askKeyboard(const char* interface, const char* method,
                             const QVariantList& arguments) const {
        QDBusMessage call =
            QDBusMessage::createMethodCall("sm.puri.OSK0", "/sm/puri/OSK0", interface, method);
        call.setArguments(arguments);
        return QDBusConnection::connectToBus(bus->address, "phone").call(call);
    }
    void setKeyboardShown(bool shown) const { askKeyboard("sm.puri.OSK0", "SetVisible", {shown}); }
    /// "true", "false" or, where there is no keyboard yet, nothing.
    QString keyboardShown() const {
        const QDBusReply<QVariant> reply =
            askKeyboard("org.freedesktop.DBus.Properties", "Get", {"sm.puri.OSK0", "Visible"});
        return reply.isValid() ? reply.value().toString() : QString();
    }

    /// Whether the main screen fills a screen of a size within the time, from corner to corner.
    bool fills(QSize size) {
        return soon([&] {
            const QImage image = screen();
            const int right = size.width() - 1, bottom = size.height() - 1;
            for (const QPoint corner : {QPoint(0, 0), {right, 0}, {0, bottom}, {right, bottom}})
                if (image.size() != size || image.pixel(corner) != white)
                    return false;
            return contains(image, {size.width() - 44, 0, 44, 44}, accent) &&
                   contains(image, {0, bottom - 50, size.width(), 50}, black);
        });
    }
    static bool contains(const QImage& image, const QRect& area, QRgb color) {
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                if (image.pixel(x, y) == color)
                    return true;
        return false;
    }
    /// Where the form's caret appears: a run of its colour down a column of pixels.
    QPoint caret() {
        QPoint found;
        EXPECT_TRUE(soon([&] {
            const QImage image = screen();
            for (int x = 0; x < image.width(); ++x)
                for (int y = 60, length = 0; y < image.height(); ++y) {
                    length = image.pixel(x, y) == accent ? length + 1 : 0;
                    if (length == 16) {
                        found = {x, y};
                        return true;
                    }
                }
            return false;
        })) << "the caret is not seen";
        return found;
    }
    /// Whether the whole card of the form's last row appears above the keyboard.
    bool showsLastRow(int x) {
        return soon([&] {
            const QImage image = screen();
            int white44 = 0;
            for (int y = 60; y < image.height(); ++y) {
                if (image.pixel(x, y) == ground && white44 >= 44 && white44 <= 50)
                    return true;
                white44 = image.pixel(x, y) == white ? white44 + 1 : 0;
            }
            return false;
        });
    }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    std::unique_ptr<Server> bus;
    std::unique_ptr<Finger> finger;
    QProcess compositor, keyboard, app;
};

TEST_F(Phone, ShowsTheAppUprightAndTurnedWithTheKeyboardUp) {
    ASSERT_TRUE(fills(upright));
    turn("90");
    EXPECT_TRUE(fills(turned));
    turn("normal");
    ASSERT_TRUE(fills(upright));
    const auto isFrameShown = [&](int x) { return contains(screen(), {x, 670, 100, 50}, black); };
    ASSERT_TRUE(isFrameShown(10) && !isFrameShown(250));
    finger->tap({300, 695}, upright);
    EXPECT_TRUE(soon([&] { return isFrameShown(250); })) << "the tap is lost";
    EXPECT_EQ(keyboardShown(), u"false") << "nothing takes text";

    finger->tap({338, 22}, upright);
    ASSERT_TRUE(soon([&] { return keyboardShown() == u"true"; }));
    const QPoint empty = caret();
    const QPoint keyQ(18, 545);
    EXPECT_TRUE(soon([&] { return screen().pixel(2, keyQ.y()) != ground; }));
    finger->tap(keyQ, upright);
    EXPECT_TRUE(soon([&] { return caret().x() > empty.x() + 5; })) << "no key arrives";
    const QPoint amount(150, 255);
    finger->tap(amount, upright);
    ASSERT_TRUE(soon([&] { return caret().y() > 230; }));
    setKeyboardShown(false);
    ASSERT_TRUE(soon([&] { return keyboardShown() == u"false"; }));
    finger->tap(amount, upright);
    EXPECT_TRUE(soon([&] { return keyboardShown() == u"true"; })) << "the tap opens no keyboard";
    EXPECT_TRUE(soon([&] { return screen().pixel(key1) != ground; }));
    finger->tap(key1, upright);
    // Of a keyboard of letters, nothing would stay in the field.
    QPoint typed;
    EXPECT_TRUE(soon([&] { return (typed = caret()).x() > empty.x() + 5; })) << "no digit arrives";
    turn("90");
    EXPECT_TRUE(soon([&] { return screen().size() == turned; }));
    EXPECT_LT(caret().y(), 180) << "the field is behind the keyboard";
    finger->drag({300, 130}, {300, 65}, turned);
    finger->drag({300, 130}, {300, 65}, turned);
    finger->drag({300, 130}, {300, 65}, turned);
    finger->drag({300, 130}, {300, 65}, turned);
    EXPECT_TRUE(showsLastRow(140)) << "Save cannot be reached";
    turn("normal");
    EXPECT_TRUE(soon([&] { return screen().size() == upright; }));
    EXPECT_TRUE(soon([&] { return caret().x() == typed.x(); })) << "what was typed is lost";
}

TEST_F(Phone, TakesTheFirstTapOnAMenu) {
    ASSERT_TRUE(fills(upright));
    const auto isBehindDarker = [&](int gray) { return qGray(screen().pixel(180, 10)) < gray; };
    const auto hasMenu = [&] { return contains(screen(), {215, 190, 40, 25}, black); };
    finger->tap({22, 22}, upright);
    ASSERT_TRUE(soon([&] { return contains(screen(), {313, 46, 44, 44}, accent); }));
    EXPECT_TRUE(isBehindDarker(210) && !hasMenu());
    finger->tap({335, 68}, upright);
    ASSERT_TRUE(soon(hasMenu));
    finger->tap({230, 200}, upright);
    EXPECT_TRUE(soon([&] { return isBehindDarker(180); })) << "the copies are not shown";
}

} // namespace
} // namespace kovamo
