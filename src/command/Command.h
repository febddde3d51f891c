#pragma once

#include "CommandFailure.h"

#include <QCommandLineOption>
#include <vector>

namespace kovamo {

class Call;

/// What a command takes beside its options, such as a file.
struct Operand {
    QString name;
    QString description;
    bool isRequired = false;
};

/// One of the things that the program does without a display.
struct Command {
    QString name;
    /// What it does, in a line.
    QString summary;
    std::vector<QCommandLineOption> options;
    std::optional<Operand> operand;
    /// Does it. Throws CommandFailure and StoreError.
    ExitStatus (*run)(const Call&);
};

} // namespace kovamo
