#pragma once

#include <QString>

namespace kovamo {

/// Brings the names of a folder's files to the disk: without it, a power cut can undo a rename.
void syncFolder(const QString& folder);

} // namespace kovamo
