#include "Locale.h"

#include <QByteArray>
#include <cstring>
#include <memory>
#include <unicode/datefmt.h>
#include <unicode/numfmt.h>

namespace kovamo {

namespace {

icu::Locale posixLocale() {
    return icu::Locale::createCanonical("en_US_POSIX");
}

bool hasFormatters(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateFormat> dates(
        icu::DateFormat::createInstanceForSkeleton("yMMMd", locale, status));
    const std::unique_ptr<icu::NumberFormat> money(
        icu::NumberFormat::createInstance(locale, UNUM_CURRENCY, status));
    return U_SUCCESS(status);
}

/// The locale of a name as somebody wrote it: of its language and country alone where ICU has no
/// formatters for what follows them ("@calendar=…").
icu::Locale named(const char* name) {
    const icu::Locale locale = icu::Locale::createCanonical(name);
    if (locale.isBogus())
        return posixLocale();
    const bool isPlain =
        std::strlen(locale.getVariant()) == 0 && std::strchr(locale.getName(), '@') == nullptr;
    return isPlain || hasFormatters(locale)
               ? locale
               : icu::Locale(locale.getLanguage(), locale.getCountry());
}

icu::Locale localeOf(const char* category) {
    for (const char* variable : {"LC_ALL", category, "LANG"}) {
        const QByteArray name = qgetenv(variable);
        if (!name.isEmpty() && name != "C" && !name.startsWith("C.") && name != "POSIX")
            return named(name.constData());
        if (!name.isEmpty())
            break;
    }
    return posixLocale();
}

} // namespace

icu::Locale moneyLocale() {
    return localeOf("LC_MONETARY");
}

icu::Locale dateLocale() {
    return localeOf("LC_TIME");
}

} // namespace kovamo
