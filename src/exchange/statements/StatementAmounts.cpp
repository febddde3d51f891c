#include "StatementAmounts.h"

namespace kovamo {

namespace {

struct Signed {
    bool isNegative = false;
    /// Digits, points and commas; empty where there is anything else.
    QString digits;
};

/// Removes the sign, before or after the digits or as brackets, the currency, and separators of
/// thousands that are neither point nor comma.
Signed stripped(const QString& text) {
    Signed amount;
    for (const QChar character : text) {
        if (character.isDigit())
            amount.digits += QChar(u'0' + character.digitValue());
        else if (character == u'.' || character == u',')
            amount.digits += character;
        else if (character == u'\u066b') // the decimal separator of Arabic digits
            amount.digits += u',';
        else if (character == u'-' || character == u'\u2212' || character == u'(')
            amount.isNegative = true;
        else if (!character.isSpace() && !character.isLetter() &&
                 character.category() != QChar::Symbol_Currency &&
                 !QStringView(u"+)'\u2019\u066c\u200e\u200f\u061c.").contains(character))
            return {};
    }
    // The point of a currency such as "Fr.".
    while (amount.digits.startsWith(u'.') && amount.digits.count(u'.') > 1)
        amount.digits.remove(0, 1);
    return amount;
}

/// The character before the fraction, if only one reading is possible.
QChar decimalMark(const QString& digits) {
    const qsizetype point = digits.lastIndexOf(u'.');
    const qsizetype comma = digits.lastIndexOf(u',');
    if (point < 0 && comma < 0)
        return {};
    const QChar last = point > comma ? u'.' : u',';
    const qsizetype at = std::max(point, comma);
    if (std::min(point, comma) >= 0)
        return digits.count(last) == 1 ? last : QChar();
    if (digits.count(last) > 1)
        return last == u'.' ? u',' : u'.'; // it separates thousands
    return digits.size() - at - 1 == 3 && at > 0 && at <= 3 ? QChar() : last;
}

} // namespace

void StatementAmounts::learn(const QString& text) {
    const QChar mark = decimalMark(stripped(text).digits);
    m_points += mark == u'.';
    m_commas += mark == u',';
}

std::optional<StatementAmount> StatementAmounts::amount(const QString& text) const {
    Signed amount = stripped(text);
    const QChar own = decimalMark(amount.digits);
    // Where no amount of the file is clear, a mark before three digits separates thousands.
    const bool isUnclear = own.isNull() && m_points == m_commas;
    const QChar decimal = !own.isNull()         ? own
                          : isUnclear           ? QChar()
                          : m_commas > m_points ? QChar(u',')
                                                : QChar(u'.');
    if (decimal != u'.')
        amount.digits.remove(u'.');
    if (decimal != u',')
        amount.digits.remove(u',');
    const QChar mark = decimal.isNull() ? QChar(u'.') : decimal;
    const qsizetype at = amount.digits.indexOf(mark);
    QString whole = at < 0 ? amount.digits : amount.digits.left(at);
    QString fraction = at < 0 ? QString() : amount.digits.mid(at + 1);
    if (fraction.contains(mark) || (whole.isEmpty() && fraction.isEmpty()))
        return std::nullopt;
    while (whole.size() > 1 && whole.startsWith(u'0'))
        whole.remove(0, 1);
    while (fraction.endsWith(u'0'))
        fraction.chop(1);
    constexpr qsizetype mostDigits = 15;
    if (whole.size() > mostDigits)
        return std::nullopt;
    StatementAmount found;
    found.isNegative = amount.isNegative;
    found.whole = whole.toLongLong();
    found.hundredths = found.whole * 100 + fraction.leftJustified(2, u'0').left(2).toLongLong();
    if (!fraction.isEmpty() && fraction[0] >= u'5')
        ++found.whole;
    found.exact = (found.isNegative ? QStringLiteral("-") : QString()) +
                  (whole.isEmpty() ? QStringLiteral("0") : whole) +
                  (fraction.isEmpty() ? QString() : u'.' + fraction);
    return found;
}

} // namespace kovamo
