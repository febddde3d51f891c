#pragma once

#include <QString>

namespace kovamo {

/// As much of a text as a row can show, on one line: line breaks are blanks, and what is longer
/// than `longest` UTF-16 units ends in an ellipsis. What another program has stored may be of any
/// length, and Qt lays out all that it is given.
[[nodiscard]] QString shownText(const QString& text, qsizetype longest = 500);

} // namespace kovamo
