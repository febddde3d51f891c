#include "Visit.h"
#include "platform/desktop/StoreReviewController.h"
#include "platform/foundation/UserDefaults.h"
#include "support/FastQueue.h"

namespace kovamo {
namespace {

struct App : testing::Test {
    App() {
        UserDefaults::standard().set(RootView::onboardingFinishedKey(), true);
        // The test before may have ended under a sheet.
        StoreReviewController::shared().setSheetPresented(false);
    }
    FastQueue queue;
};

TEST_F(App, LeadsFromAFreshStartToTheFirstTransaction) {
    UserDefaults::standard().set(RootView::onboardingFinishedKey(), false);
    Book book;
    {
        Visit visit(book);
        EXPECT_TRUE(visit.lacks("Add Item"));
        for (const char* button : {"Next", "Next", "Next", "Get Started"})
            visit.click(button);
        EXPECT_TRUE(visit.lacks("12 Months")) << "there is nothing to choose a frame of";
        visit.click("🙄 create a transaction");
        EXPECT_TRUE(visit.shows("New Transaction"));
        visit.write("Emoji", "☕");
        visit.writeNext("<b>Coffee</b>");
        EXPECT_FALSE(visit.isEnabled("Save"));
        visit.writeNext("1,2a5");
        visit.writeNext("9");
        visit.click("Spending");
        EXPECT_TRUE(visit.isEnabled("Save"));
        visit.click("Save");
        EXPECT_TRUE(visit.hides("New Transaction")) << "the sheet closes itself";
        EXPECT_TRUE(visit.focusComesToBeSeen());
        EXPECT_TRUE(visit.shows("Your Kovamo is negative 💔"));
        EXPECT_TRUE(visit.shows("<b>Coffee</b>")) << "a title is plain text";
        EXPECT_TRUE(visit.shows("- $125"));
        EXPECT_TRUE(visit.has("12 Months"));
    }
    Visit again(book);
    EXPECT_TRUE(again.shows("Your Kovamo is negative 💔")) << "the onboarding is over for good";
}

TEST_F(App, HasTheMeasuresOfItsDesign) {
    Book book({{50}});
    Visit visit(book);
    EXPECT_TRUE(visit.shows("+ $50"));
    visit.setReducedMotion(false);
    const std::tuple<const char*, const char*, double> measures[] = {
        {"Banner_QML", "height", 100 + 2 * 16},
        {"kovamo::RollingNumber", "duration", 250},
        {"kovamo::ViewItem", "height", 200 + 2 * 20},
        {"TimeFramePicker_QML", "height", 1 + 50},
    };
    for (const auto& [type, property, value] : measures)
        EXPECT_EQ(visit.measure(type, property), value) << type << ", " << property;
    visit.setReducedMotion(true);
    visit.click("Add Item", "Records a new transaction");
    EXPECT_TRUE(visit.shows("New Transaction"));
    EXPECT_EQ(visit.measure("FormSection_QML", "radius"), 10);
}

TEST_F(App, HasNothingToPressThatAFingerMisses) {
    Book book({{50}, {40, "2024-05-15", "monthly"}});
    Visit visit(book);
    visit.resize({320, 480});
    struct Step {
        const char* presses; // an element, or a letter with Ctrl
        const char* shows;
    };
    const Step steps[] = {{"n", "New Transaction"},
                          {"Date", "Next month"},
                          {"May 2024", "Dec"},
                          {"Recurring", "End"},
                          {"Choose an emoji", "Search emoji"},
                          {"Cancel", "New Transaction"},
                          {"Dismiss", "12 Months"},
                          {"l", "Transactions"},
                          {"f", "Search transactions"},
                          {"Cancel", "Transactions"},
                          {"Share", "Import…"}};
    EXPECT_TRUE(visit.has("12 Months"));
    EXPECT_EQ(visit.smallTargets(), "");
    for (const auto& [presses, shows] : steps) {
        if (presses[1] == 0)
            visit.press(Qt::Key(Qt::Key_A + presses[0] - 'a'), Qt::ControlModifier);
        else
            visit.act(presses);
        EXPECT_TRUE(visit.has(shows)) << presses << ", " << shows;
        EXPECT_EQ(visit.smallTargets(), "") << shows;
    }
}

TEST_F(App, ChangesTheTimeFrame) {
    Book book({{50, "2024-07-02"}, {10, "2024-06-01", "monthly"}});
    Visit visit(book);
    EXPECT_TRUE(visit.has("🙄 create a transaction"));
    EXPECT_TRUE(visit.hides("Your Kovamo is neutral 🧿"));
    visit.click("3 Months");
    EXPECT_TRUE(visit.shows("05/01 - 07/31"));
    EXPECT_TRUE(visit.shows("+ $50"));
    EXPECT_TRUE(visit.lacks("🙄 create a transaction"));
    visit.press(Qt::Key_3, Qt::ControlModifier);
    EXPECT_TRUE(visit.shows("05/01/24 - 04/30/25"));
    EXPECT_TRUE(visit.has("Your Kovamo is positive 👍. Balance $160"));
    for (int tabs = 0; tabs < 3; ++tabs)
        visit.press(Qt::Key_Tab);
    visit.press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_TRUE(visit.hides("05/01/24 - 04/30/25"));
    EXPECT_TRUE(visit.focusComesToBeSeen()) << "it went with the chart";
}

TEST_F(App, LetsTheBalanceScrollAwayOnAShortScreen) {
    Book book({{1}, {2}, {3}, {4}, {5}, {6}, {7}, {8}, {9}, {10}, {11}, {12}});
    Visit visit(book);
    for (const QSize size : {QSize(390, 844), QSize(720, 360), QSize(360, 720), QSize(320, 480)}) {
        visit.resize(size);
        EXPECT_TRUE(visit.isInSight("Your Kovamo is positive 👍", true)) << "at first, in all";
        for (int strokes = 0; strokes < 2; ++strokes)
            visit.drag({100, size.height() - 60}, {0, 150 - size.height()});
        EXPECT_TRUE(visit.isInSight("Your Kovamo is positive 👍", size.height() > 480))
            << size.width();
    }
}

TEST_F(App, ShowsWhatTheSearchFindsOnAShortScreen) {
    Book book({{1}, {2}, {3}, {4}});
    Visit visit(book);
    visit.resize({720, 180});
    visit.press(Qt::Key_L, Qt::ControlModifier);
    visit.press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(visit.isInSight("+ $4", true));
    EXPECT_TRUE(visit.isInSight("Search transactions", true));
    visit.press(Qt::Key_Escape);
    EXPECT_TRUE(visit.isInSight("Transactions", true)) << "the title is back";
}

TEST_F(App, LeavesNoRowBehindWhatTakesADeletionBack) {
    Book book({{1}, {2}, {3}, {4}, {5}, {6}, {7}, {8}, {9}, {10}, {11}, {12}});
    Visit visit(book);
    visit.resize({320, 480});
    visit.press(Qt::Key_L, Qt::ControlModifier);
    visit.press(Qt::Key_End);
    for (const int next : {2, 3}) {
        visit.press(Qt::Key_Delete);
        EXPECT_TRUE(
            visit.isAbove(QStringLiteral("title, earning, $%1, May 15, 2024").arg(next), "Undo"));
    }
    visit.click("Undo");
    visit.press(Qt::Key_Delete);
    EXPECT_EQ(Book().all().size(), 11U) << "the first key shows the row";
    visit.press(Qt::Key_Delete);
    EXPECT_EQ(Book().all().size(), 10U);
}

TEST_F(App, ShowsTheMonthToWhichTheUserComesBack) {
    Book book({{300}, {20, "2024-06-02"}});
    Visit visit(book);
    EXPECT_TRUE(visit.has("Your Kovamo is positive 👍. Balance $300"));
    World::setTime("2024-06-01 02:00");
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_TRUE(visit.has("Your Kovamo is positive 👍. Balance $20"));
    qputenv("TZ", "America/New_York");
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    EXPECT_TRUE(visit.has("Your Kovamo is positive 👍. Balance $300")) << "where it is still May";
}

TEST_F(App, EditsARecordFromTheListOfAll) {
    Book book({{300}, {500, "1999-01-01", nullptr, "1999-01-01", false}});
    Transaction& record = *book.all().at(0);
    const auto id = record.id();
    Visit visit(book);
    visit.click("Add Item", "Shows all transactions");
    EXPECT_TRUE(visit.shows("- $500"));
    visit.click("title, earning, $300, May 15, 2024");
    EXPECT_TRUE(visit.shows("Edit Transaction"));
    visit.write("Title", "!");
    World::setTime("2024-05-16 10:00");
    visit.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(visit.shows("Transactions")) << "back in the list";
    EXPECT_EQ(record.title(), QStringLiteral("title!"));
    EXPECT_EQ(record.id(), id);
    EXPECT_EQ(record.timestamp(), at("2024-05-16 10:00"));

    visit.click("title!, earning, $300, May 15, 2024");
    visit.write("Title", "?");
    visit.drag({5, 400}, {100, 0});
    EXPECT_TRUE(visit.shows("Edit Transaction")) << "a short drag from the edge comes back";
    visit.drag({5, 400}, {250, 0});
    EXPECT_TRUE(visit.shows("Transactions"));
    EXPECT_EQ(record.title(), QStringLiteral("title!")) << "leaving the form keeps nothing";

    World::setTime("2024-05-17 10:00");
    visit.press(Qt::Key_Return);
    const auto comeBack = [&] {
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Return})
            visit.press(key);
    };
    visit.catchWith(comeBack, Qt::Key_S);
    EXPECT_EQ(record.timestamp(), at("2024-05-17 10:00")) << "of three forms, the one that comes";
}

TEST_F(App, GoesOnWithASheetThatIsCaughtOnItsWayOut) {
    Book book({{300}});
    Visit visit(book);
    visit.press(Qt::Key_L, Qt::ControlModifier);
    visit.click("title, earning, $300, May 15, 2024");
    EXPECT_TRUE(visit.shows("Edit Transaction"));
    visit.catchWith([&] { visit.clickBesideTheSheet(); }, Qt::Key_L);
    visit.write("Title", "!");
    visit.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(visit.has("title!, earning, $300, May 15, 2024"));
    visit.press(Qt::Key_Escape);

    visit.press(Qt::Key_N, Qt::ControlModifier);
    visit.write("Emoji", "☕");
    visit.write("Title", "Coffee");
    visit.catchWith([&] { visit.press(Qt::Key_Escape); }, Qt::Key_N);
    visit.write("Amount", "4");
    visit.catchWith([&] { visit.press(Qt::Key_S, Qt::ControlModifier); }, Qt::Key_N);
    EXPECT_TRUE(visit.shows("Emoji")) << "what has been saved is not there to be saved again";
    EXPECT_FALSE(visit.isEnabled("Save"));
    visit.write("Title", "Tea");
    visit.press(Qt::Key_Escape);
    visit.press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(visit.shows("New Transaction"));
    EXPECT_TRUE(visit.hides("Tea"));
    EXPECT_EQ(book.all().size(), 2U);
}

TEST_F(App, ShowsAllOfLargeText) {
    Book book;
    const QString title = QStringLiteral("A wooden chair and a table");
    for (int letters = 4; letters <= title.size(); letters += 2)
        book.add({1000 - letters}).setTitle(title.first(letters));
    Visit visit(book);
    for (const int width : {390, 320, 430}) {
        visit.enlargeText(width);
        EXPECT_LT(visit.scaleOf("12 Months"), 1);
        EXPECT_EQ(visit.scaleOf("Current"), visit.scaleOf("12 Months"));
        visit.press(Qt::Key_L, Qt::ControlModifier);
        for (const int narrower : {0, 20}) {
            visit.enlargeText(width - narrower);
            for (int letters = 4; letters <= 14; letters += 2)
                EXPECT_TRUE(visit.showsWhole(title.first(letters))) << width << ' ' << letters;
        }
        visit.press(Qt::Key_Escape);
    }
}

TEST_F(App, SeesADeletionUnderTheSheet) {
    Book book({{300}, {20, "2024-05-02", nullptr, "2024-05-02", false}});
    Visit visit(book);
    EXPECT_TRUE(visit.has("Your Kovamo is positive 👍. Balance $280"));
    visit.press(Qt::Key_L, Qt::ControlModifier);
    visit.press(Qt::Key_Delete);
    EXPECT_TRUE(visit.has("Your Kovamo is negative 💔. Balance minus $20"));
    EXPECT_TRUE(visit.lacks("title, earning, $300, May 15, 2024"));
    visit.press(Qt::Key_Delete);
    visit.press(Qt::Key_Escape);
    EXPECT_TRUE(visit.has("🙄 create a transaction"));
    EXPECT_TRUE(Book().all().empty());
}

TEST_F(App, OpensWhatAStartAsksForButNotOverASheet) {
    Book book({{300}});
    Visit visit(book);
    visit.perform({StartAction::newTransaction});
    EXPECT_TRUE(visit.has("Save"));
    visit.perform({StartAction::allTransactions});
    EXPECT_TRUE(visit.has("Save"));
    visit.press(Qt::Key_Escape);
    EXPECT_TRUE(visit.lacks("Save"));
    visit.perform({StartAction::allTransactions});
    EXPECT_TRUE(visit.shows("Transactions"));
}

/// A file of one record of an amount, by which its id and its name go, too.
QString fileOf(int amount) {
    QFile file(QStringLiteral("%1/%2.csv").arg(World::folder()).arg(amount));
    EXPECT_TRUE(file.open(QFile::WriteOnly));
    file.write("id,date,title,emoji,amount,kind,timestamp\n7e3c8a1e-0000-4000-8000-" +
               QByteArray::number(amount).rightJustified(12, '0') + ",2024-05-02,Rent,🏠," +
               QByteArray::number(amount) + ",spending,\n");
    return file.fileName();
}

TEST_F(App, TakesInTheFilesOfStartsOneByOneOverWhatIsTyped) {
    UserDefaults::standard().set(RootView::onboardingFinishedKey(), false);
    Book book;
    Visit visit(book);
    visit.perform({.file = fileOf(1)});
    for (const char* button : {"Next", "Next", "Next", "Get Started"})
        visit.click(button);
    EXPECT_TRUE(visit.shows("1.csv")) << "it waits for the first pages to be finished";
    visit.press(Qt::Key_N, Qt::ControlModifier);
    visit.press(Qt::Key_Escape);
    EXPECT_TRUE(visit.hides("1.csv"));
    EXPECT_TRUE(visit.hides("New Transaction")) << "a sheet was open";

    visit.press(Qt::Key_N, Qt::ControlModifier);
    visit.write("Emoji", "☕");
    visit.writeNext("Coffee");
    visit.writeNext("7");
    visit.perform({StartAction::allTransactions, fileOf(20)});
    visit.perform({.file = fileOf(30)});
    EXPECT_TRUE(visit.shows("New: 1"));
    visit.press(Qt::Key_S, Qt::ControlModifier);
    visit.click("Import");
    EXPECT_TRUE(visit.shows("Imported"));
    EXPECT_EQ(book.amounts(), std::vector{20}) << "the form below keeps waiting";
    visit.click("Done");
    EXPECT_TRUE(visit.shows("30.csv"));
    visit.press(Qt::Key_Escape);
    EXPECT_TRUE(visit.hides("30.csv"));
    visit.press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(visit.hides("New Transaction"));
    EXPECT_EQ(book.amounts(), (std::vector{20, 7}));
    EXPECT_EQ(book.all()[1]->title(), QStringLiteral("Coffee"));
}

TEST_F(App, FindsARecordAndTakesItsDeletionBack) {
    Book book({{300}, {1250, "2020-01-01", "monthly"}, {20}});
    book.all()[1]->setTitle(QStringLiteral("Café"));
    book.context.save();
    Visit visit(book);
    visit.press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(visit.has("Search transactions"));
    type(QStringLiteral("cafe"));
    EXPECT_TRUE(visit.shows("1 found, + $1,250"));
    visit.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(visit.hides("1 found, + $1,250")) << "in a field the key is the field's own";
    type(QStringLiteral("cafe"));
    EXPECT_TRUE(visit.shows("1 found, + $1,250"));
    visit.press(Qt::Key_Down);
    visit.press(Qt::Key_Delete);
    EXPECT_TRUE(visit.shows("0 found"));
    EXPECT_TRUE(visit.shows("Café, monthly since 2020, deleted"));
    EXPECT_EQ(Book().amounts(), (std::vector{300, 20}));
    visit.click("Undo");
    EXPECT_TRUE(visit.shows("1 found, + $1,250"));
    EXPECT_TRUE(visit.hides("Café, monthly since 2020, deleted"));
    visit.press(Qt::Key_Escape);
    EXPECT_TRUE(visit.lacks("Search transactions")) << "and the sheet is still there";
    EXPECT_TRUE(visit.has("title, earning, $300, May 15, 2024"));
    visit.press(Qt::Key_Down);
    visit.press(Qt::Key_Delete);
    EXPECT_TRUE(visit.shows("title deleted"));
    EXPECT_EQ(Book().all().size(), 2U);
    visit.press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Book().all().size(), 3U);
    EXPECT_TRUE(visit.has("title, earning, $300, May 15, 2024"));
}

TEST_F(App, AsksForStarsAtTheFourthStart) {
    UserDefaults::standard().set(QStringLiteral("appStartUpsCountKey"), std::int64_t{2});
    Book book({{300}});
    for (const bool asks : {false, true}) {
        Visit visit(book);
        visit.press(Qt::Key_Tab);
        queue.advance(std::chrono::milliseconds(1999));
        EXPECT_TRUE(visit.hides("Enjoying Kovamo?"));
        queue.advance(std::chrono::milliseconds(1));
        EXPECT_TRUE(visit.shows("Enjoying Kovamo?", asks));
        if (asks)
            visit.click("Not Now");
        EXPECT_TRUE(visit.hides("Enjoying Kovamo?"));
        EXPECT_TRUE(visit.focusComesToBeSeen());
    }
}

TEST_F(App, OffersTheCopyOfAStoreThatIsGone) {
    const auto start = [](bool goesBack) {
        Book book;
        book.context.setAutomaticallyMergesChangesFromParent(true);
        Visit visit(book);
        EXPECT_TRUE(visit.has("Go Back to the Copy of May 15, 2024"));
        visit.click(goesBack ? "Go Back to the Copy of May 15, 2024" : "Keep Empty");
        EXPECT_TRUE(visit.lacks("Keep Empty"));
        EXPECT_TRUE(visit.shows(goesBack ? "title" : "🙄 create a transaction"));
    };
    (void)Book({{30}});
    (void)Book({{40}});
    ASSERT_TRUE(QFile::remove(Book().container.storePath()));
    start(false);
    start(true);
    Book book;
    EXPECT_EQ(book.amounts(), std::vector<std::int32_t>{30});
    EXPECT_TRUE(Visit(book).lacks("Keep Empty"));
}

} // namespace
} // namespace kovamo
