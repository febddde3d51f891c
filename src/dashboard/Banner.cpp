#include "Banner.h"

#include "ledger/Balance.h"
#include "platform/foundation/Formatters.h"
#include "platform/foundation/Locale.h"
#include "platform/views/Shape.h"
#include "platform/views/ShapeViews.h"

#include <QRegularExpression>
#include <cstdio>

namespace kovamo {

namespace {

constexpr double cornerRadius = 20;

/// One unit of the currency, without the marks that some locales put around it for the direction.
QString oneUnit() {
    return currencyText(1).removeIf(
        [](QChar character) { return character.category() == QChar::Other_Format; });
}

bool currencyFollows(const QString& one) {
    return one.startsWith(digitText(1));
}

QString withoutDigit(QString one) {
    return one.remove(digitText(1));
}

} // namespace

Banner::Banner(ManagedObjectContext& context, TimeFrame selectedTimeFrame) : viewContext(&context) {
    gatherTransactions(selectedTimeFrame, context, transactions);
    judge(netBalance(transactions));
}

void Banner::judge(std::int64_t sum) {
    kovamo = magnitude(sum);
    infoText = verdictText(sum);
    if (sum > 0) {
        kovamoText = QStringLiteral("+ ");
        currentGradient = greenGardient;
    } else if (sum < 0) {
        kovamoText = QStringLiteral("- ");
        currentGradient = redGradient;
    } else {
        kovamoText = QStringLiteral("   0");
        currentGradient = blueGradient;
    }
}

QString Banner::numberText() const {
    // Some locales (de_AT) group money by another rule than plain numbers: take it from money text.
    static const QRegularExpression digits(QStringLiteral("\\p{Nd}(.*\\p{Nd})?"));
    return digits.match(currencyText(kovamo)).captured();
}

QString Banner::leadingSymbol() const {
    const QString one = oneUnit();
    return currencyFollows(one) ? QString() : withoutDigit(one);
}

QString Banner::trailingSymbol() const {
    std::printf("%s\n", moneyLocale().getName());
    std::fflush(stdout);
    const QString one = oneUnit();
    return currencyFollows(one) ? withoutDigit(one) : QString();
}

QString Banner::sentence() const {
    return QStringLiteral("%1. Balance %2%3")
        .arg(infoText, QLatin1String(kovamoText == u"- " ? "minus " : ""), currencyText(kovamo));
}

AnyView Banner::card() const {
    return FilledShape{RoundedRectangle{cornerRadius, true}, currentGradient};
}

} // namespace kovamo
