#pragma once

#include <QString>

namespace kovamo {

/// How a command ends, as the process's exit status.
enum class ExitStatus { done = 0, notDone = 1, wrongCall = 2 };

/// What a command fails with, thrown: a sentence for the user, and what the process ends with. An
/// empty sentence is an end that nobody needs to hear of.
struct CommandFailure {
    QString message;
    ExitStatus status = ExitStatus::notDone;
};

} // namespace kovamo
