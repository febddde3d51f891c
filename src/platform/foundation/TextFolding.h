#pragma once

#include <QString>

namespace kovamo {

/// `text` as a search compares it: without case, accents, compatibility forms and invisible
/// characters, "Straße" as "strasse", "Café" as "cafe", the digits of every script as 0 … 9. What
/// follows are Unicode's compatibility case folding and decomposition (UAX #15); of the marks only
/// those go that are accents or vowel points and no letters of their own.
[[nodiscard]] QString folded(const QString& text);

} // namespace kovamo
