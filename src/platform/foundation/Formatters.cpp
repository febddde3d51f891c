#include "Formatters.h"

#include "FatalError.h"
#include "Locale.h"

#include <map>
#include <memory>
#include <unicode/datefmt.h>
#include <unicode/numfmt.h>
#include <unicode/numsys.h>
#include <unicode/smpdtfmt.h>

namespace kovamo {

namespace {

icu::UnicodeString toIcu(const QString& text) {
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<int32_t>(text.size())};
}

QString toQt(const icu::UnicodeString& text) {
    return QString::fromUtf16(text.getBuffer(), text.length());
}

void require(UErrorCode status, const char* what) {
    if (U_FAILURE(status))
        fatalError(QStringLiteral("No formatter for %1: %2")
                       .arg(QLatin1String(what), QLatin1String(u_errorName(status))));
}

QString formatted(const icu::DateFormat& format, Instant instant) {
    icu::UnicodeString text;
    format.format(static_cast<UDate>(instant.time_since_epoch().count()), text);
    return toQt(text);
}

QString patternText(Instant instant, const QString& pattern, const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::SimpleDateFormat format(toIcu(pattern), locale, status);
    require(status, "dates");
    return formatted(format, instant);
}

/// ICU's format of whole numbers in the user's locale for money. To make one costs as much as many
/// texts, so each thread keeps the last of a style.
const icu::NumberFormat& numberFormat(UNumberFormatStyle style) {
    struct Kept {
        icu::Locale locale;
        std::unique_ptr<icu::NumberFormat> format;
    };
    thread_local std::map<UNumberFormatStyle, Kept> formats;
    const icu::Locale locale = moneyLocale();
    Kept& kept = formats[style];
    if (!kept.format || kept.locale != locale) {
        UErrorCode status = U_ZERO_ERROR;
        kept = {locale, std::unique_ptr<icu::NumberFormat>(
                            icu::NumberFormat::createInstance(locale, style, status))};
        require(status, "numbers");
        kept.format->setMaximumFractionDigits(0);
    }
    return *kept.format;
}

} // namespace

QString NumberFormatter::string(std::int64_t number) const {
    icu::UnicodeString text;
    numberFormat(numberStyle == Style::currency ? UNUM_CURRENCY : UNUM_DECIMAL)
        .format(number, text);
    if (text.isEmpty())
        fatalError(QStringLiteral("The formatter returned no text for %1").arg(number));
    return toQt(text);
}

QString DateFormatter::string(Instant instant) const {
    return patternText(instant, dateFormat, dateLocale());
}

QString currencyText(std::int64_t amount) {
    return NumberFormatter{NumberFormatter::Style::currency}.string(amount);
}

QString withDirection(bool isPositive, const QString& money) {
    return QLatin1String(isPositive ? "+ " : "- ") + money;
}

QString numberText(std::int64_t number) {
    return NumberFormatter{}.string(number);
}

QString digitText(int digit) {
    return numberText(digit);
}

QString localizedDateText(Instant instant, const QString& skeleton) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createInstanceForSkeleton(toIcu(skeleton), dateLocale(), status));
    require(status, "dates");
    return formatted(*format, instant);
}

QString dayText(Instant instant) {
    return patternText(instant, QStringLiteral("yyyy-MM-dd"), icu::Locale::getRoot());
}

QString minuteText(Instant instant) {
    return patternText(instant, QStringLiteral("yyyy-MM-dd HH:mm"), icu::Locale::getRoot());
}

} // namespace kovamo
