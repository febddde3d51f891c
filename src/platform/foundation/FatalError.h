#pragma once

#include <QString>

namespace kovamo {

/// Stops the program: writes "Fatal error: " and `message` to standard error, hands the message to
/// the witness and aborts. For programming errors and for the failures that the system does not
/// survive.
[[noreturn]] void fatalError(const QString& message);

/// Called with each fatal error before the process ends. It has two seconds; an error within it
/// ends the process without a further call.
using FatalErrorWitness = void (*)(const QString& message);
void setFatalErrorWitness(FatalErrorWitness witness);

/// Keeps the system from writing the process's memory, and with it the user's records, to a file
/// when the process dies.
void forbidCoreDumps();

} // namespace kovamo
