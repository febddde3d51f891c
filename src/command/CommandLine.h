#pragma once

#include <QStringList>
#include <optional>

namespace kovamo {

/// Does what a command line, without the program's name, wants done without a display, and returns
/// the process's exit status; nothing where its first word is no command. Results go to standard
/// output, everything else to standard error.
[[nodiscard]] std::optional<int> runCommand(const QStringList& arguments);

/// The commands and what they do, a line for each.
[[nodiscard]] QString commandsText();

} // namespace kovamo
