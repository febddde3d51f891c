#pragma once

#include "Command.h"

namespace kovamo {

[[nodiscard]] Command balanceCommand();
[[nodiscard]] Command listCommand();

} // namespace kovamo
