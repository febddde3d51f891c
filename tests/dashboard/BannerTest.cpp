#include "dashboard/Banner.h"
#include "support/Book.h"

#include <gtest/gtest.h>

namespace kovamo {
namespace {

TEST(Banner, JudgesTheBalanceOfTheFrame) {
    const World world("2024-05-15 10:00");
    const struct {
        std::initializer_list<Line> lines;
        TimeFrame timeFrame;
        std::int64_t kovamo;
        const char* infoText;
        const char* kovamoText;
        LinearGradient Banner::*gradient;
    } cases[] = {
        {{}, 1, 0, "Your Kovamo is neutral 🧿", "   0", &Banner::blueGradient},
        {{{100}, {100, "2024-05-02", nullptr, "2024-05-02", false}},
         1,
         0,
         "Your Kovamo is neutral 🧿",
         "   0",
         &Banner::blueGradient},
        {{{10}, {25, "2024-05-02", nullptr, "2024-05-02", false}},
         1,
         15,
         "Your Kovamo is negative 💔",
         "- ",
         &Banner::redGradient},
        {{{10}, {25, "2024-06-02"}},
         1,
         10,
         "Your Kovamo is positive 👍",
         "+ ",
         &Banner::greenGardient},
        {{{10}, {5, "2020-01-01", "monthly"}},
         2,
         25,
         "Your Kovamo is positive 👍",
         "+ ",
         &Banner::greenGardient},
        {{{2147483647}, {2147483647}, {2147483647}},
         1,
         6442450941,
         "Your Kovamo is positive 👍",
         "+ ",
         &Banner::greenGardient},
    };
    for (const auto& [lines, timeFrame, kovamo, infoText, kovamoText, gradient] : cases) {
        const World scratch("2024-05-15 10:00");
        Book book(lines);
        const Banner banner(book.context, timeFrame);
        EXPECT_EQ(banner.isShown(), lines.size() > 0);
        EXPECT_EQ(banner.kovamo, kovamo);
        EXPECT_EQ(banner.infoText.toStdString(), infoText);
        EXPECT_EQ(banner.kovamoText.toStdString(), kovamoText);
        EXPECT_EQ(banner.currentGradient, banner.*gradient);
    }
    EXPECT_EQ(Banner().currentGradient, Banner().greenGardient);
}

TEST(Banner, PutsTheCurrencyWhereTheLocaleDoes) {
    const World world("2024-05-15 10:00");
    const struct {
        const char* locale;
        const char* leading;
        const char* number;
        const char* trailing;
    } cases[] = {
        {"en_US.UTF-8", "$", "1,234", ""},
        {"de_DE.UTF-8", "", "1.234", "\u00a0€"},
        {"ja_JP.UTF-8", "￥", "1,234", ""},
        {"de_CH.UTF-8", "CHF\u00a0", "1’234", ""},
        {"fr_FR.UTF-8", "", "1\u202f234", "\u00a0€"},
        {"ar_EG.UTF-8", "", "١٬٢٣٤", "\u00a0ج.م."},
    };
    Book book({{1234}});
    const Banner banner(book.context, 1);
    for (const auto& [locale, leading, number, trailing] : cases) {
        qputenv("LC_ALL", locale);
        testing::internal::CaptureStdout();
        EXPECT_EQ(banner.leadingSymbol().toStdString(), leading) << locale;
        EXPECT_EQ(banner.trailingSymbol().toStdString(), trailing) << locale;
        EXPECT_EQ(testing::internal::GetCapturedStdout(), std::string(locale, 5) + "\n");
        EXPECT_EQ(banner.numberText().toStdString(), number) << locale;
    }
}

} // namespace
} // namespace kovamo
