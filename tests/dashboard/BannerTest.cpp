#include "dashboard/Banner.h"
#include "platform/views/Raster.h"
#include "support/Book.h"

namespace kovamo {
namespace {

TEST(Banner, PutsTheCurrencyWhereTheLocaleDoes) {
    const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
        {"en_US.UTF-8", "$", "1,234", ""},          {"de_DE.UTF-8", "", "1.234", "\u00a0€"},
        {"de_CH.UTF-8", "CHF\u00a0", "1’234", ""},  {"fr_FR.UTF-8", "", "1\u202f234", "\u00a0€"},
        {"ar_EG.UTF-8", "", "١٬٢٣٤", "\u00a0ج.م."}, {"de_AT.UTF-8", "€\u00a0", "1.234", ""},
    };
    Book book({{1234}});
    const Banner banner(book.context, 1);
    for (const auto& [locale, leading, number, trailing] : cases) {
        qputenv("LC_ALL", locale);
        testing::internal::CaptureStdout();
        EXPECT_EQ(banner.leadingSymbol(), leading) << locale;
        EXPECT_EQ(banner.trailingSymbol(), trailing) << locale;
        EXPECT_EQ(testing::internal::GetCapturedStdout(), std::string(locale, 5) + "\n");
        EXPECT_EQ(banner.numberText(), number) << locale;
    }
}

TEST(Banner, HasACardWithCornersOf20Points) {
    Book book({{1}});
    const QImage card = raster(Banner(book.context, 1).card(), {200, 100});
    EXPECT_FALSE(isPainted(card, {0, 0, 4, 4}));
    EXPECT_TRUE(isPainted(card, {8, 8, 1, 1}) && isPainted(card, {22, 0, 1, 1}));
}

} // namespace
} // namespace kovamo
