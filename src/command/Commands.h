#pragma once

#include "Command.h"

namespace kovamo {

[[nodiscard]] Command balanceCommand();
[[nodiscard]] Command checkCommand();
[[nodiscard]] Command copiesCommand();
[[nodiscard]] Command exportCommand();
[[nodiscard]] Command importCommand();
[[nodiscard]] Command listCommand();
[[nodiscard]] Command restoreCommand();

} // namespace kovamo
