#pragma once

#include <QString>

namespace kovamo {

/// How a command ends, as the process's exit status.
enum class ExitStatus { done = 0, notDone = 1, wrongCall = 2 };

/// What a command throws when it fails: a sentence for the user and the exit status. Where the
/// sentence is empty, nothing is printed.
struct CommandFailure {
    QString message;
    ExitStatus status = ExitStatus::notDone;
};

} // namespace kovamo
