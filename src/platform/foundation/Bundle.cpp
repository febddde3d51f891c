#include "Bundle.h"

#include "FatalError.h"

namespace kovamo {

Bundle& Bundle::main() {
    static Bundle bundle;
    return bundle;
}

QString Bundle::text(QLatin1StringView key) const {
    const QVariant value = m_infoDictionary.value(key);
    if (!value.canConvert<QString>())
        fatalError(u"The application does not say its " + key);
    return value.toString();
}

} // namespace kovamo
