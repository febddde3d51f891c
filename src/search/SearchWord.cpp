#include "SearchWord.h"

#include "platform/foundation/Calendar.h"
#include "platform/foundation/TextFolding.h"

#include <QRegularExpression>
#include <QStringList>

namespace kovamo {

namespace {

struct Direction {
    const char16_t* word;
    bool isPositive;
};

constexpr Direction directions[] = {{u"+", true},         {u"earning", true}, {u"earnings", true},
                                    {u"-", false},        {u"−", false},      {u"spending", false},
                                    {u"spendings", false}};

std::optional<bool> directionNamed(const QString& word) {
    for (const Direction& direction : directions)
        if (word == direction.word)
            return direction.isPositive;
    return std::nullopt;
}

/// The digits of an amount as money is written; a last group that is not of three digits is a
/// fraction, which no amount has.
QString amountDigits(const QString& word) {
    static const QRegularExpression money(
        QStringLiteral("^\\p{Sc}?[+−-]?\\p{Sc}?\\s?(\\d+(?:[\\s.,'’٬٫]\\d*)*)\\s?\\p{Sc}?$"));
    static const QRegularExpression separator(QStringLiteral("[^\\d]"));
    QStringList groups = money.match(word).captured(1).split(separator);
    if (groups.size() > 1 && groups.last().size() != 3)
        groups.removeLast();
    return groups.join(QString());
}

/// The year that is written as four digits.
std::optional<Period> yearNamed(const QString& word) {
    static const QRegularExpression fourDigits(QStringLiteral("^[1-9]\\d{3}$"));
    if (!fourDigits.match(word).hasMatch())
        return std::nullopt;
    const Calendar calendar;
    const int year = word.toInt();
    return Period{calendar.instant({year, 1, 1}), calendar.instant({year + 1, 1, 1})};
}

SearchWord searchWord(const QString& typed) {
    const QString word = folded(typed);
    const bool isType = word == u"monthly" || word == u"yearly";
    return {.text = word.toStdString(),
            .digits = amountDigits(word).toStdString(),
            .isPositive = directionNamed(word),
            .recurringType = isType ? word : QString(),
            .year = yearNamed(word)};
}

} // namespace

std::vector<SearchWord> searchWords(const QString& query) {
    // A blank that does not break a line groups the digits of an amount.
    static const QRegularExpression blanks(QStringLiteral("[^\\S\\x{A0}\\x{2007}\\x{202F}]+"));
    std::vector<SearchWord> words;
    static const QRegularExpression currency(QStringLiteral("^\\p{Sc}+$"));
    for (const QString& word : query.split(blanks, Qt::SkipEmptyParts))
        // "1 200 €": the currency stands apart and is no word to find.
        if (!currency.match(word).hasMatch())
            words.push_back(searchWord(word));
    return words;
}

std::string searchText(const QString& text) {
    return folded(text).toStdString();
}

} // namespace kovamo
