#include "editing/AddTransactionView.h"
#include "platform/foundation/NotificationCenter.h"
#include "support/Book.h"

#include <QSignalSpy>

namespace kovamo {
namespace {

void fill(AddTransactionView& form, const char* amount) {
    form.setEmoji(QStringLiteral("☕"));
    form.setTitle(QStringLiteral("Coffee"));
    form.setAmount(QString::fromUtf8(amount));
}

TEST(AddTransactionView, LetsOnlyAsciiDigitsIntoTheAmount) {
    Book book;
    AddTransactionView form(book.context);
    const std::pair<const char*, const char*> cases[] = {
        {"1.234,56 €", "123456"},
        {"٣٤5", "5"},
        {"+", ""},
        {"99999999999999999999", "99999999999999999999"},
    };
    for (const auto& [typed, kept] : cases) {
        const QSignalSpy changes(&form, &AddTransactionView::amountChanged);
        form.setAmount(QString::fromUtf8(typed));
        EXPECT_EQ(form.amount().toStdString(), kept) << typed;
        EXPECT_GE(changes.count(), 1) << "the field is not told to drop " << typed;
    }
}

TEST(AddTransactionView, CanSaveOnceNothingIsEmpty) {
    Book book;
    AddTransactionView form(book.context);
    for (const auto set : {&AddTransactionView::setEmoji, &AddTransactionView::setTitle,
                           &AddTransactionView::setAmount}) {
        fill(form, "1");
        EXPECT_TRUE(form.canSave());
        (form.*set)({});
        EXPECT_FALSE(form.canSave());
        form.save();
    }
    EXPECT_TRUE(book.all().empty());
}

TEST(AddTransactionView, WritesWhatItShowsAndTellsBeforeItCloses) {
    Book book;
    std::string order;
    AddTransactionView form(book.context, nullptr, PresentationMode([&] { order += "closed"; }));
    EXPECT_EQ(form.selectedPositive(), u"Earning");
    EXPECT_EQ(form.selectedType(), u"Monthly");
    EXPECT_FALSE(form.isRecurring());
    World::setTime("2024-05-15 10:05");
    fill(form, "0042");
    form.setSelectedPositive(QStringLiteral("Spending"));
    form.setIsRecurring(true);
    form.setSelectedType(QStringLiteral("Yearly"));
    form.setIsRecurring(false);

    const NotificationPublisher publisher(QStringLiteral("TransactionRefresh"));
    QObject::connect(&publisher, &NotificationPublisher::received, [&](const QVariant& object) {
        EXPECT_EQ(object, QVariant(QStringLiteral("refresh")));
        EXPECT_FALSE(book.context.hasChanges());
        order += "told ";
    });
    form.save();
    form.save();
    EXPECT_EQ(order, "told closed") << "pressed again on its way out, it saves nothing";

    const Transaction& saved = *book.all().at(0);
    EXPECT_TRUE(saved.id());
    EXPECT_EQ(saved.amount(), 42);
    EXPECT_FALSE(saved.isPositive());
    EXPECT_FALSE(saved.isRecurring());
    EXPECT_EQ(saved.recurringType(), QStringLiteral("yearly"));
    EXPECT_EQ(saved.startDate(), at("2024-05-15 10:00")) << "the moment of opening";
    EXPECT_EQ(saved.endDate(), at("2024-05-15 10:00"));
    EXPECT_EQ(saved.timestamp(), at("2024-05-15 10:05")) << "the moment of saving";
}

TEST(AddTransactionView, EditsARecordInPlace) {
    Book book({{50, "2024-05-10 08:30", "yearly", "2026-05-10", false}, {1}});
    Transaction& record = *book.all().at(0);
    AddTransactionView form(book.context, &record);
    EXPECT_EQ(form.amount(), u"50");
    EXPECT_EQ(form.selectedPositive(), u"Spending");
    EXPECT_EQ(form.selectedType(), u"Yearly");
    EXPECT_TRUE(form.isRecurring());
    form.setTitle(QStringLiteral("Other"));
    EXPECT_EQ(record.title(), QStringLiteral("title")) << "nothing is written before the save";

    form.save();
    EXPECT_EQ(book.all().size(), 2U);
    EXPECT_EQ(record.startDate(), at("2024-05-10 08:30"));

    record.setRecurringType({});
    EXPECT_EQ(AddTransactionView(book.context, &record).selectedType(), u"Monthly");
}

TEST(AddTransactionViewDeathTest, StopsOverWhatItCannotKeep) {
    Book book({{1}});
    AddTransactionView form(book.context);
    fill(form, "2147483648");
    EXPECT_DEATH(form.save(), "2147483648");
    fill(form, "2147483647");
    form.save();
    EXPECT_EQ(book.all().back()->amount(), 2147483647);

    Transaction& record = *book.all().at(0);
    record.setEndDate({});
    EXPECT_DEATH(AddTransactionView(book.context, &record), "has no endDate");

    AddTransactionView lost(book.context);
    fill(lost, "1");
    book.elsewhere("DROP TABLE \"Transaction\"");
    EXPECT_DEATH(lost.save(), "Unresolved error");
}

} // namespace
} // namespace kovamo
