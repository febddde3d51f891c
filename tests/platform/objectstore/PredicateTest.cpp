#include "Ledger.h"

#include <gtest/gtest.h>

namespace kovamo {
namespace {

Instant day(int number) {
    return Instant(std::chrono::milliseconds(number));
}

/// A random condition with its arguments, up to three levels deep.
QString randomCondition(std::mt19937& random, std::vector<Value>& arguments, int depth = 0) {
    const auto below = [&](unsigned limit) { return random() % limit; };
    if (depth < 3 && below(2) == 0) {
        const QString left = randomCondition(random, arguments, depth + 1);
        const QString right = randomCondition(random, arguments, depth + 1);
        const QString joined = left + (below(2) ? u" AND " : u" or ") + right;
        return below(2) ? QString(u'(' + joined + u')') : joined;
    }
    static const char* const operators[] = {"==", "=", "!=", "<>", "<", "<=", ">", ">="};
    const QString comparison = QLatin1String(operators[below(8)]);
    switch (below(4)) {
    case 0:
        return u"flag " + comparison + (below(2) ? u" YES" : u" NO");
    case 1:
        arguments.emplace_back(day(static_cast<int>(below(5))));
        return u"day" + comparison + u"%@";
    case 2:
        arguments.emplace_back(QString(QChar(static_cast<char16_t>(u'a' + below(4)))));
        return u"note " + comparison + u" %@";
    default:
        arguments.emplace_back(static_cast<std::int32_t>(below(5)));
        return u"amount " + comparison + u" %@";
    }
}

TEST(Predicate, MeansTheSameToTheStoreAndToPendingRecords) {
    const World world("2024-05-15 10:00");
    std::mt19937 random(7);
    Ledger saved;
    for (int i = 0; i < 60; ++i) {
        Entry& entry = saved.add(static_cast<std::int32_t>(random() % 5));
        if (random() % 3)
            entry.set(Entry::Note, QString(QChar(static_cast<char16_t>(u'a' + random() % 4))));
        if (random() % 3)
            entry.set(Entry::Day, day(static_cast<int>(random() % 5)));
        entry.set(Entry::Flag, random() % 2 == 0);
    }
    saved.context.save();
    const auto all = saved.context.fetch<Entry>(entries());
    for (int i = 0; i < 500; ++i) {
        std::vector<Value> arguments;
        const QString format = randomCondition(random, arguments);
        const Predicate predicate(format, arguments);
        std::vector<Entry*> expected;
        std::ranges::copy_if(all, std::back_inserter(expected), [&](const Entry* entry) {
            return predicate.matches(Entry::entity(), entry->values());
        });
        EXPECT_EQ(saved.context.fetch<Entry>(entries(predicate)), expected) << qPrintable(format);
    }
}

TEST(PredicateDeathTest, NamesWhatItCannotMean) {
    const World world("2024-05-15 10:00");
    const struct {
        const char* format;
        std::vector<Value> arguments;
        const char* message;
    } cases[] = {
        {"amount >", {}, "Malformed predicate: .amount >"},
        {"amount == %@", {}, "Malformed predicate"},
        {"flag == YES", {std::int32_t{1}}, "Malformed predicate"},
        {"flag == YES AND", {}, "Malformed predicate"},
        {"(flag == YES", {}, "Malformed predicate"},
        {"flag == YES flag == NO", {}, "Malformed predicate"},
        {"flag == 1; DROP TABLE Entry", {}, "Malformed predicate"},
        {"colour == YES", {}, "has no attribute .colour"},
        {"amount == YES", {}, "compares .amount. with a value of another type"},
    };
    Ledger ledger;
    for (const auto& [format, arguments, message] : cases)
        EXPECT_DEATH(
            (void)ledger.context.fetchIDs(entries(Predicate(QString::fromUtf8(format), arguments))),
            message)
            << format;
}

} // namespace
} // namespace kovamo
