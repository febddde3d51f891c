#include "app/KovamoApp.h"
#include "app/RootView.h"
#include "platform/foundation/UserDefaults.h"
#include "support/Book.h"
#include "support/FastQueue.h"
#include "support/Hand.h"

#include <QQmlApplicationEngine>
#include <QTest>
#include <gtest/gtest.h>

namespace kovamo {
namespace {

/// The running app on the store of a book, from its start to its end.
class Visit {
  public:
    explicit Visit(Book& book) : m_root(book.context) {
        QObject::connect(&m_engine, &QQmlEngine::warnings, [](const QList<QQmlError>& errors) {
            for (const QQmlError& error : errors)
                ADD_FAILURE() << error.toString().toStdString();
        });
        m_window = &KovamoApp::showWindow(m_engine, m_root);
        m_window->setProperty("reducedMotion", true);
        m_window->requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_window));
    }

    /// Whether a text comes to be shown, or goes.
    [[nodiscard]] bool shows(const char* text) const {
        return soon([=, this] { return isShown(text); });
    }
    [[nodiscard]] bool hides(const char* text) const {
        return soon([=, this] { return !isShown(text); });
    }
    /// Whether a screen reader comes to find an element of a name, or to miss it.
    [[nodiscard]] bool has(const char* name) const {
        return soon([=, this] { return find(name); });
    }
    [[nodiscard]] bool lacks(const char* name) const {
        return soon([=, this] { return !find(name); });
    }
    [[nodiscard]] bool isEnabled(const char* name) const { return find(name)->isEnabled(); }

    void click(const char* name, const char* description = "") {
        ASSERT_TRUE(soon([&] { return find(name, description); })) << name;
        kovamo::click(*m_window, middle(find(name, description)));
    }
    void write(const char* field, const char* text) {
        click(field);
        type(QString::fromUtf8(text));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(m_window, key, modifiers);
    }

  private:
    static bool soon(const std::function<bool()>& holds) { return QTest::qWaitFor(holds, 30000); }
    [[nodiscard]] bool isShown(const char* text) const {
        return shown(*m_window, QString::fromUtf8(text), false) != nullptr;
    }
    [[nodiscard]] QQuickItem* find(const char* name, const char* description = "") const {
        return named(*m_window, QString::fromUtf8(name), QString::fromUtf8(description));
    }

    RootView m_root;
    QQmlApplicationEngine m_engine;
    QQuickWindow* m_window = nullptr;
};

void skipOnboarding() {
    UserDefaults::standard().set(RootView::onboardingFinishedKey(), true);
}

class App : public testing::Test {
  protected:
    FastQueue queue;
};

TEST_F(App, LeadsFromAFreshStartToTheFirstTransaction) {
    Book book;
    {
        Visit visit(book);
        EXPECT_TRUE(visit.lacks("Add Item"));
        visit.click("Next");
        visit.click("Next");
        visit.click("Next");
        visit.click("Get Started");
        EXPECT_TRUE(visit.lacks("12 Months")) << "there is nothing to choose a frame of";
        visit.click("🙄 create a transaction");
        EXPECT_TRUE(visit.shows("New Transaction"));
        visit.write("Emoji", "☕");
        visit.write("Title", "<b>Coffee</b>");
        EXPECT_FALSE(visit.isEnabled("Save"));
        visit.write("Amount", "1,2a5");
        visit.click("Spending");
        EXPECT_TRUE(visit.isEnabled("Save"));
        visit.click("Save");
        EXPECT_TRUE(visit.hides("New Transaction")) << "the sheet closes itself";
        EXPECT_TRUE(visit.shows("Your Kovamo is negative 💔"));
        EXPECT_TRUE(visit.shows("<b>Coffee</b>")) << "a title is plain text";
        EXPECT_TRUE(visit.shows("- $125"));
        EXPECT_TRUE(visit.has("12 Months"));
    }
    Visit again(book);
    EXPECT_TRUE(again.shows("Your Kovamo is negative 💔")) << "the onboarding is over for good";
}

TEST_F(App, ChangesTheTimeFrame) {
    skipOnboarding();
    Book book({{100}, {50, "2024-07-02"}, {10, "2020-01-01", "monthly"}});
    Visit visit(book);
    EXPECT_TRUE(visit.shows("Current Month"));
    EXPECT_TRUE(visit.hides("+ $50"));
    visit.click("3 Months");
    EXPECT_TRUE(visit.shows("05/01 - 07/31"));
    EXPECT_TRUE(visit.shows("+ $50"));
    EXPECT_TRUE(visit.shows("+ $30"));
    visit.press(Qt::Key_3, Qt::ControlModifier);
    EXPECT_TRUE(visit.shows("05/01/24 - 04/30/25"));
    EXPECT_TRUE(visit.has("Your Kovamo is positive 👍. Balance $270"));
}

TEST_F(App, OffersToCreateWhenTheFrameIsEmpty) {
    skipOnboarding();
    Book book({{100, "2024-08-01"}});
    Visit visit(book);
    EXPECT_TRUE(visit.has("🙄 create a transaction"));
    EXPECT_TRUE(visit.hides("Your Kovamo is neutral 🧿"));
    visit.click("12 Months");
    EXPECT_TRUE(visit.shows("+ $100"));
    EXPECT_TRUE(visit.lacks("🙄 create a transaction"));
}

TEST_F(App, EditsARecordFromTheListOfAll) {
    skipOnboarding();
    Book book({{300}, {500, "1999-01-01", nullptr, "1999-01-01", false}});
    Transaction& record = *book.all().at(0);
    const auto id = record.id();
    Visit visit(book);
    visit.click("Add Item", "Shows all transactions");
    EXPECT_TRUE(visit.shows("Transactions"));
    EXPECT_TRUE(visit.shows("- $500"));
    visit.click("title, earning, $300");
    EXPECT_TRUE(visit.shows("Edit Transaction"));
    visit.write("Title", "!");
    World::setTime("2024-05-16 10:00");
    visit.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(visit.shows("Transactions")) << "back in the list";
    EXPECT_EQ(record.title(), QStringLiteral("title!"));
    EXPECT_EQ(record.id(), id);
    EXPECT_EQ(record.timestamp(), at("2024-05-16 10:00"));

    visit.click("title!, earning, $300");
    visit.write("Title", "?");
    visit.press(Qt::Key_Escape);
    EXPECT_EQ(record.title(), QStringLiteral("title!")) << "leaving the form keeps nothing";
}

TEST_F(App, SeesADeletionUnderTheSheet) {
    skipOnboarding();
    Book book({{300}, {20, "2024-05-02", nullptr, "2024-05-02", false}});
    Visit visit(book);
    EXPECT_TRUE(visit.has("Your Kovamo is positive 👍. Balance $280"));
    visit.press(Qt::Key_L, Qt::ControlModifier);
    visit.press(Qt::Key_Delete);
    EXPECT_TRUE(visit.has("Your Kovamo is negative 💔. Balance minus $20"));
    EXPECT_TRUE(visit.lacks("title, earning, $300"));
    visit.press(Qt::Key_Delete);
    visit.press(Qt::Key_Escape);
    EXPECT_TRUE(visit.has("🙄 create a transaction"));
    EXPECT_TRUE(Book().all().empty());
}

TEST_F(App, AsksForStarsAtTheFourthStart) {
    skipOnboarding();
    Book book({{300}});
    for (int start = 1; start <= 4; ++start) {
        Visit visit(book);
        queue.advance(std::chrono::milliseconds(1999));
        EXPECT_TRUE(visit.hides("Enjoying Kovamo?")) << "start " << start;
        queue.advance(std::chrono::milliseconds(1));
        if (start == 4) {
            EXPECT_TRUE(visit.shows("Enjoying Kovamo?"));
            visit.click("Not Now");
        }
        EXPECT_TRUE(visit.hides("Enjoying Kovamo?"));
    }
}

} // namespace
} // namespace kovamo
