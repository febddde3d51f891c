#pragma once

#include "Command.h"

namespace kovamo {

[[nodiscard]] Command balanceCommand();
[[nodiscard]] Command checkCommand();
[[nodiscard]] Command listCommand();

} // namespace kovamo
