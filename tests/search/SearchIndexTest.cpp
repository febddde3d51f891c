#include "search/SearchIndex.h"
#include "support/Book.h"

namespace kovamo {
namespace {

QString nameOf(const QString& emoji) {
    return emoji == u"🛒" ? QStringLiteral("shopping cart") : QString();
}

/// The amounts of what is found in a book, in order.
std::vector<std::int32_t> found(const Book& book, const char* query) {
    SearchIndex index(nameOf);
    for (const Transaction* record : book.all())
        index.add(record->objectID(), record->values());
    index.sort();
    std::vector<std::int32_t> amounts;
    for (const ObjectID id : index.find(searchWords(QString::fromUtf8(query))).ids)
        amounts.push_back(static_cast<Transaction&>(book.context.object(id)).amount());
    return amounts;
}

TEST(SearchIndex, FindsTextsHoweverTheyAreWritten) {
    const struct {
        const char* title;
        const char* query;
        bool finds;
    } cases[] = {
        {"Café au lait", "cafe LAIT", true},
        {"Café", "kaffee", false},
        {"Straße", "STRASSE", true},
        {"strasse", "ß", true},
        {"Ispanak ılık", "ilik", true},
        {"İstanbul", "istanbul", true},
        {"ﬁne", "fine", true},
        {"Καφές", "ΚΑΦΕΣ", true},
        {"مُحَمَّد", "محمد", true},
        {"أحمد", "احمد", true},
        {"Ａｐｐ", "app", true},
        {"Łódź", "lodz", true},
        {"١٢ أيام", "12", true},
        {"ガス", "カス", false},
        {"shopping cart", "🛒", true},
        {"Tea", "shopping  tea", true},
        {"Tea", "tea coffee", false},
        {"<b>", "<", true},
    };
    for (const auto& [title, query, finds] : cases) {
        Book book({{7}});
        book.all()[0]->setTitle(QString::fromUtf8(title));
        book.all()[0]->setEmoji(QStringLiteral("🛒"));
        EXPECT_EQ(!found(book, query).empty(), finds) << title << " by " << query;
    }
}

TEST(SearchIndex, FindsAmountsKindsAndYears) {
    Book book({{20},
               {480, "2024-12-31 23:59", nullptr, "2024-12-31", false},
               {1200, "2022-06-01", "monthly", "2025-01-01"},
               {48, "2019-01-01", "yearly", "2021-12-31", false},
               {2024, "1999-01-01"}});
    book.context.save();
    const struct {
        const char* query;
        std::vector<std::int32_t> amounts;
    } cases[] = {
        {"48", {480, 48}},
        {"$480", {480}},
        {"- $480.00", {480}},
        {"1,200", {1200}},
        {"1\u00A0200 €", {1200}},
        {"١٬٢٠٠", {1200}},
        {"80", {}},
        {"spending", {480, 48}},
        {"earning 20", {2024, 20}},
        {"MONTHLY", {1200}},
        {"yearly spending", {48}},
        {"2020", {48}},
        {"2024", {2024, 1200, 480, 20}},
        {"1998", {}},
        {"1999 earnings", {2024}},
    };
    for (const auto& [query, amounts] : cases)
        EXPECT_EQ(found(book, query), amounts) << query;
    // Every calendar has these years.
    for (const char* locale :
         {"fa_IR", "th_TH", "he_IL@calendar=hebrew", "zh_CN@calendar=chinese"}) {
        qputenv("LC_ALL", locale);
        EXPECT_EQ(searchWords(QStringLiteral("1000 9999")).size(), 2U);
    }
}

} // namespace
} // namespace kovamo
