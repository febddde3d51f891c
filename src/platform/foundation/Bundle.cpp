#include "Bundle.h"

namespace kovamo {

Bundle::Bundle() : m_infoDictionary({{kCFBundleVersionKey, QStringLiteral(KOVAMO_BUILD_NUMBER)}}) {}

Bundle& Bundle::main() {
    static Bundle bundle;
    return bundle;
}

} // namespace kovamo
