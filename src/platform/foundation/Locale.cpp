#include "Locale.h"

#include <QByteArray>
#include <cstring>
#include <memory>
#include <string>
#include <unicode/datefmt.h>
#include <unicode/numfmt.h>

namespace kovamo {

namespace {

icu::Locale posixLocale() {
    // It is canonical. To find that out, ICU would read its table of all aliases.
    return icu::Locale("en_US_POSIX");
}

bool hasFormatters(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateFormat> dates(
        icu::DateFormat::createInstanceForSkeleton("yMMMd", locale, status));
    const std::unique_ptr<icu::NumberFormat> money(
        icu::NumberFormat::createInstance(locale, UNUM_CURRENCY, status));
    return U_SUCCESS(status);
}

/// Whether a locale is of no more than a language, a script and a country, which ICU has
/// formatters for whatever they are.
bool isPlain(const icu::Locale& locale) {
    constexpr std::size_t longest = std::char_traits<char>::length("yue_Hant_419");
    return std::strlen(locale.getName()) <= longest && std::strlen(locale.getVariant()) == 0 &&
           std::strchr(locale.getName(), '@') == nullptr;
}

/// The locale of a name as somebody wrote it: of its language and country alone where ICU has no
/// formatters for what follows them ("@calendar=…").
icu::Locale named(QByteArray name) {
    // The C library writes a script behind the country ("sr_RS@latin"), ICU behind the language.
    constexpr std::pair<const char*, const char*> scripts[] = {
        {"@latin", "_Latn"}, {"@cyrillic", "_Cyrl"}, {"@devanagari", "_Deva"}};
    for (const auto& [modifier, script] : scripts)
        if (const auto country = name.indexOf('_'); country > 0 && name.endsWith(modifier)) {
            name.chop(static_cast<qsizetype>(std::strlen(modifier)));
            name.insert(country, script);
        }
    const icu::Locale whole = icu::Locale::createCanonical(name.constData());
    for (const icu::Locale& locale : {whole, icu::Locale(whole.getLanguage(), whole.getCountry())})
        if (!locale.isBogus() && (isPlain(locale) || hasFormatters(locale)))
            return locale;
    return posixLocale();
}

icu::Locale localeOf(const char* category) {
    for (const char* variable : {"LC_ALL", category, "LANG"}) {
        const QByteArray name = qgetenv(variable);
        if (!name.isEmpty() && name != "C" && !name.startsWith("C.") && name != "POSIX")
            return named(name);
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
