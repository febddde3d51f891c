#include "platform/foundation/Locale.h"
#include "support/World.h"

namespace kovamo {
namespace {

TEST(Locale, OfMoneyAndOfDatesAreTwo) {
    qunsetenv("LC_ALL");
    qputenv("LANG", "en_GB.UTF-8");
    qputenv("LC_MONETARY", "de_CH.UTF-8");
    EXPECT_STREQ(moneyLocale().getName(), "de_CH");
    EXPECT_STREQ(dateLocale().getName(), "en_GB");
    qunsetenv("LC_MONETARY");
    qputenv("LC_TIME", "fr_FR.UTF-8");
    EXPECT_STREQ(moneyLocale().getName(), "en_GB");
    EXPECT_STREQ(dateLocale().getName(), "fr_FR");
    qputenv("LC_ALL", "it_IT.UTF-8");
    EXPECT_STREQ(moneyLocale().getName(), "it_IT");
    EXPECT_STREQ(dateLocale().getName(), "it_IT");
}

} // namespace
} // namespace kovamo
