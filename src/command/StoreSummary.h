#pragma once

#include <QString>

namespace kovamo {

/// What a store's file holds, in a few words: how many records, and when the newest was saved; or
/// why it cannot be read.
[[nodiscard]] QString summaryOf(const QString& storePath);

} // namespace kovamo
