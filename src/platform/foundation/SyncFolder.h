#pragma once

#include <QString>

namespace kovamo {

/// Makes what was done to the names in a folder last.
void syncFolder(const QString& folder);

} // namespace kovamo
