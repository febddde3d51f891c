#include "FatalError.h"

#include <cstdio>
#include <cstdlib>

namespace kovamo {

void fatalError(const QString& message) {
    std::fprintf(stderr, "Fatal error: %s\n", message.toUtf8().constData());
    std::fflush(stderr);
    std::abort();
}

} // namespace kovamo
