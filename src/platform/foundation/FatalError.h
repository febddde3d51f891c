#pragma once

#include <QString>

namespace kovamo {

/// Stops the program: writes "Fatal error: " and `message` to standard error and aborts. For
/// programming errors and for the failures that the system does not survive.
[[noreturn]] void fatalError(const QString& message);

} // namespace kovamo
