#include "Locale.h"

#include <QByteArray>

namespace kovamo {

namespace {

icu::Locale localeOf(const char* category) {
    for (const char* variable : {"LC_ALL", category, "LANG"}) {
        const QByteArray name = qgetenv(variable);
        if (!name.isEmpty() && name != "C" && !name.startsWith("C.") && name != "POSIX")
            return icu::Locale::createCanonical(name.constData());
        if (!name.isEmpty())
            break;
    }
    return icu::Locale::createCanonical("en_US_POSIX");
}

} // namespace

icu::Locale moneyLocale() {
    return localeOf("LC_MONETARY");
}

icu::Locale dateLocale() {
    return localeOf("LC_TIME");
}

} // namespace kovamo
