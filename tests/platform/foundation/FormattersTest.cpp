#include "platform/foundation/Formatters.h"
#include "support/World.h"

#include <gtest/gtest.h>

namespace kovamo {
namespace {

TEST(Formatters, MoneyFollowsTheLocale) {
    const World world("2024-05-15 10:00");
    const std::pair<const char*, const char*> cases[] = {
        {"en_US.UTF-8", "$1,234"},
        {"de_DE.UTF-8", "1.234\u00a0€"},
        {"ja_JP.UTF-8", "￥1,234"},
    };
    for (const auto& [locale, expected] : cases) {
        qputenv("LC_ALL", locale);
        EXPECT_EQ(currencyText(1234), QString::fromUtf8(expected)) << locale;
    }
}

} // namespace
} // namespace kovamo
