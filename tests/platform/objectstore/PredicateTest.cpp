#include "Note.h"

#include <random>

namespace kovamo {
namespace {

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
        return u"isPinned " + comparison + (below(2) ? u" YES" : u" NO");
    case 1:
        arguments.emplace_back(Instant(std::chrono::milliseconds(below(5))));
        return u"due" + comparison + u"%@";
    case 2:
        arguments.emplace_back(QString(QChar(static_cast<char16_t>(u'a' + below(4)))));
        return u"title " + comparison + u" %@";
    default:
        arguments.emplace_back(static_cast<std::int32_t>(below(5)));
        return u"pages " + comparison + u" %@";
    }
}

TEST(Predicate, MeansTheSameToTheStoreAndToPendingRecords) {
    std::mt19937 random(7);
    Notebook book;
    for (int i = 0; i < 60; ++i) {
        Note& record = book.add({static_cast<std::int32_t>(random() % 5)});
        record.setTitle({});
        if (random() % 3)
            record.setTitle(QString(QChar(static_cast<char16_t>(u'a' + random() % 4))));
        record.setDue({});
        if (random() % 3)
            record.setDue(Instant(std::chrono::milliseconds(random() % 5)));
        record.setIsPinned(random() % 2 == 0);
    }
    book.context.save();
    for (int i = 0; i < 500; ++i) {
        std::vector<Value> arguments;
        const QString format = randomCondition(random, arguments);
        const Predicate predicate(format, arguments);
        auto expected = book.all();
        std::erase_if(expected, [&](const Note* record) {
            return !predicate.matches(Note::entity(), record->values());
        });
        EXPECT_EQ(book.all(notes(predicate)), expected) << qPrintable(format);
    }
}

TEST(PredicateDeathTest, NamesWhatItCannotMean) {
    const std::tuple<const char*, std::vector<Value>, const char*> cases[] = {
        {"pages >", {}, "Malformed predicate: .pages >"},
        {"pages == %@", {}, "Malformed predicate"},
        {"isPinned == YES", {std::int32_t{1}}, "Malformed predicate"},
        {"(isPinned == YES", {}, "Malformed predicate"},
        {"isPinned == YES isPinned == NO", {}, "Malformed predicate"},
        {"colour == YES", {}, "has no attribute .colour"},
        {"pages == YES", {}, "compares .pages. with a value of another type"},
    };
    Notebook book;
    for (const auto& [format, arguments, message] : cases)
        EXPECT_DEATH((void)book.all(notes(Predicate(QString::fromUtf8(format), arguments))),
                     message)
            << format;
    EXPECT_DEATH((void)book.context.fetchIDs({.entityName = QStringLiteral("Wallet")}), "Wallet");
}

} // namespace
} // namespace kovamo
