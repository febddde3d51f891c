#pragma once

#include <QString>

namespace kovamo {

/// What a store's file holds, in a few words: how many records, and when the newest was saved. What
/// cannot be read is said in their place.
[[nodiscard]] QString summaryOf(const QString& storePath);

} // namespace kovamo
