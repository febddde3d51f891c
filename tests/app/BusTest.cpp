#include "support/Server.h"
#include "support/World.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QRect>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace kovamo {
namespace {

/// An element of the tree that a screen reader reads.
struct Element {
    QString service;
    QDBusObjectPath path;
};

const QString accessible = QStringLiteral("org.a11y.atspi.Accessible");
const QString action = QStringLiteral("org.a11y.atspi.Action");
constexpr int checked = 4, focused = 12, modal = 16, selected = 23, sensitive = 24, showing = 25;

/// The app on a display and on buses of its own, as a screen reader finds it.
class Bus : public QObject, public testing::Test {
    Q_OBJECT

  protected:
    Bus() {
        const QDBusReply<QString> address =
            QDBusConnection::connectToBus(session.address, QStringLiteral("session"))
                .call(QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus",
                                                     "org.a11y.Bus", "GetAddress"));
        bus = QDBusConnection::connectToBus(address.value(), QStringLiteral("accessibility"));
        bus.connect({}, {}, "org.a11y.atspi.Event.Object", "StateChanged", this,
                    SLOT(hear(QDBusMessage)));
        call({registry.service, QDBusObjectPath("/org/a11y/atspi/registry")},
             "org.a11y.atspi.Registry", "RegisterEvent", {"object:", QStringList(), ""});
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DBUS_SESSION_BUS_ADDRESS", session.address);
        environment.insert("DISPLAY", u':' + display.address);
        environment.insert("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
        environment.insert("QT_QPA_PLATFORM", "xcb");
        app.setProcessEnvironment(environment);
    }
    void start(const QStringList& arguments = {}, QProcess* other = nullptr) {
        QProcess& process = other ? *other : app;
        process.setProcessEnvironment(app.processEnvironment());
        process.start(QStringLiteral(KOVAMO_EXECUTABLE), arguments);
    }
    ~Bus() override {
        app.kill();
        app.waitForFinished();
        for (const char* name : {"session", "accessibility"})
            QDBusConnection::disconnectFromBus(QString::fromLatin1(name));
    }

    QDBusMessage call(const Element& element, const QString& interface, const QString& method,
                      const QVariantList& arguments = {}) const {
        QDBusMessage message =
            QDBusMessage::createMethodCall(element.service, element.path.path(), interface, method);
        message.setArguments(arguments);
        return bus.call(message);
    }
    QString property(const Element& element, const char* name) const {
        const QDBusReply<QVariant> value = call(element, "org.freedesktop.DBus.Properties", "Get",
                                                {accessible, QString::fromLatin1(name)});
        return value.value().toString();
    }
    QString role(const Element& element) const {
        return QDBusReply<QString>(call(element, accessible, "GetRoleName"));
    }
    bool is(int state, const Element& element) const {
        const QDBusReply<QList<uint>> states = call(element, accessible, "GetState");
        return states.value().value(0) >> state & 1;
    }
    QList<Element> children(const Element& element) const {
        QList<Element> found;
        const auto reply = call(element, accessible, "GetChildren").arguments();
        const auto list = reply.value(0).value<QDBusArgument>();
        for (list.beginArray(); !list.atEnd(); list.endStructure()) {
            list.beginStructure();
            list >> found.emplace_back().service >> found.back().path;
        }
        list.endArray();
        return found;
    }
    QRect area(const Element& element) const {
        const QDBusMessage extents =
            call(element, "org.a11y.atspi.Component", "GetExtents", {uint(0)});
        const auto four = extents.arguments().value(0).value<QDBusArgument>();
        int x = 0, y = 0, width = 0, height = 0;
        four.beginStructure();
        four >> x >> y >> width >> height;
        four.endStructure();
        return {x, y, width, height};
    }

    /// Every element that shows below `parent`, in the order of the tree. Where `complaints` is
    /// given, notes what cannot be told apart by its name and what lies above what is read before.
    QList<Element> read(const Element& parent, QStringList* complaints = nullptr) const {
        static const QSet<QString> named{"push button", "radio button", "check box",    "text",
                                         "page tab",    "list item",    "chart",        "heading",
                                         "dialog",      "panel",        "layered pane", "filler"};
        QList<Element> found;
        QRect before;
        for (const Element& child : children(parent)) {
            if (!is(showing, child))
                continue;
            found.append(child);
            if (complaints) {
                const QString kind = role(child), name = property(child, "Name");
                const QRect place = area(child);
                if (named.contains(kind) && name.isEmpty())
                    complaints->append(u"no name: " + kind);
                if (kind != u"dialog" && place.y() + place.height() < before.y())
                    complaints->append(u"read too late: " + name);
                before = place;
            }
            found.append(read(child, complaints));
        }
        return found;
    }
    /// Holds once what moves has come to rest: places that are asked for one by one would differ.
    void expectReadable() const {
        QStringList complaints;
        const bool isReadable = soon([&] {
            complaints.clear();
            return read(registry, &complaints).size() > 10 && complaints.isEmpty();
        });
        EXPECT_TRUE(isReadable) << complaints.join(u'\n').toStdString();
    }
    /// The names of all that is in one state, whether it shows or not.
    QStringList those(int state, const Element& parent) const {
        QStringList names;
        for (const Element& child : children(parent)) {
            if (is(state, child))
                names.append(property(child, "Name"));
            names.append(those(state, child));
        }
        return names;
    }
    /// The names of all that shows.
    QStringList names(const Element& parent) const {
        QStringList found;
        for (const Element& element : read(parent))
            found.append(property(element, "Name"));
        return found;
    }
    Element find(const char* name, const char* description = "") const {
        for (const Element& element : read(registry))
            if (property(element, "Name") == QString::fromUtf8(name) &&
                property(element, "Description").startsWith(QLatin1String(description)))
                return element;
        return {};
    }
    Element await(const char* name, const char* description = "") const {
        EXPECT_TRUE(soon([&] { return !find(name, description).service.isEmpty(); })) << name;
        return find(name, description);
    }
    static bool soon(const std::function<bool()>& holds) { return QTest::qWaitFor(holds, 60000); }
    bool awaitNo(const char* name) const {
        return soon([=, this] { return find(name).service.isEmpty(); });
    }
    /// Does what the element offers by the name `what`, once it offers it.
    void act(const Element& element, const QString& what = QStringLiteral("Press")) const {
        for (int i = 0; i < 4; ++i)
            if (QDBusReply<QString>(call(element, action, "GetName", {i})).value() == what) {
                call(element, action, "DoAction", {i});
                return;
            }
        ADD_FAILURE() << property(element, "Name").toStdString() << " lacks " << what.toStdString();
    }

    const Element registry{"org.a11y.atspi.Registry",
                           QDBusObjectPath("/org/a11y/atspi/accessible/root")};
    Server session{"dbus-daemon", Server::bus()};
    Server display{"Xvfb", {"-displayfd", "1", "-screen", "0", "400x900x24"}};
    QDBusConnection bus{QString()};
    QStringList said;
    QProcess app;

  public Q_SLOTS:
    void hear(const QDBusMessage& event) {
        const Element element{event.service(), QDBusObjectPath(event.path())};
        if (event.arguments().value(0).toString() == u"showing" && role(element) == u"notification")
            said.append(property(element, "Name"));
    }
};

TEST_F(Bus, TellsAScreenReaderAllThatIsSeen) {
    start({"--demo"});
    const Element tab = await("3 Months");
    expectReadable();
    await("Salary, earning, $3,200, monthly");
    said.clear();
    act(tab);
    EXPECT_TRUE(soon([&] { return !said.isEmpty(); }));
    EXPECT_TRUE(said.value(0).startsWith(u"Your Kovamo is positive 👍. Balance $"));
    EXPECT_TRUE(is(selected, tab) && !is(checked, tab));
    await("Salary, earning, $9,600, monthly, 3 times");
    const QRegularExpression oneOff("^Freelance website, earning, \\$420, \\w+ 18, \\d{4}$");
    EXPECT_TRUE(soon([&] { return names(registry).filter(oneOff).size() == 1; }));

    const Element button = await("Add Item", "Shows all transactions");
    act(button, QStringLiteral("SetFocus"));
    EXPECT_TRUE(soon([&] { return is(focused, button); }));
    act(button);
    const Element row = await("Rent, spending, $1,150, monthly");
    EXPECT_TRUE(read(row).isEmpty()) << "a row reads as one";
    expectReadable();
    EXPECT_FALSE(is(focused, button));
    said.clear();
    act(row, QStringLiteral("Delete"));
    EXPECT_TRUE(awaitNo("Rent, spending, $1,150, monthly"));
    EXPECT_TRUE(soon([&] { return !said.filter(" deleted").isEmpty(); }));
    act(await("Dismiss"));
    EXPECT_TRUE(awaitNo("Dismiss"));
    EXPECT_TRUE(is(focused, button)) << "the sheet gives the focus back";

    act(await("Add Item", "Records a new transaction"));
    const Element choose = await("Choose an emoji");
    expectReadable();
    EXPECT_TRUE(soon([&] { return !is(showing, button); })) << "it is behind the sheet";
    EXPECT_FALSE(is(sensitive, await("Save")));
    act(await("Title"), QStringLiteral("SetFocus"));
    EXPECT_TRUE(soon([&] { return those(focused, registry) == QStringList{"Title"}; }));
    EXPECT_EQ(those(modal, registry), QStringList{"New Transaction"});
    act(choose);
    const Element pizza = await("pizza");
    expectReadable();
    act(pizza);
    await("Choose an emoji");
    act(await("Recurring"));
    act(await("End"));
    const auto days = [this](bool offered) {
        qsizetype count = 0;
        for (const Element& element : read(registry))
            count += role(element) == u"radio button" && is(sensitive, element) == offered &&
                     property(element, "Name").contains(QRegularExpression("\\d"));
        return count;
    };
    // The new transaction begins today.
    EXPECT_TRUE(soon([&] { return days(true) > 0; }));
    EXPECT_EQ(days(false), QDate::currentDate().day() - 1);
    const QDBusReply<QString> field =
        call(await("Emoji"), "org.a11y.atspi.Text", "GetText", {0, -1});
    EXPECT_EQ(field.value(), QString::fromUtf8("🍕"));
}

TEST_F(Bus, ShowsWhatASecondStartAsksFor) {
    start();
    EXPECT_EQ(role(await("Page 1 of 4")), u"label");
    for (const char* button : {"Next", "Next", "Next", "Get Started"})
        act(await(button));
    await("Add Item", "Records a new transaction");
    QProcess second;
    start({"--new-transaction"}, &second);
    await("Amount");
    EXPECT_TRUE(soon([&] { return second.state() == QProcess::NotRunning; }));
}

} // namespace
} // namespace kovamo

#include "BusTest.moc"
