#pragma once

#include <QString>

namespace kovamo {

/// Writes text to standard output. What cannot be written throws CommandFailure, without a word
/// where whoever read it has gone.
void print(const QString& text);

/// Writes what is still held back; throws as print() does.
void finishOutput();

/// A user's text as a part of a line: line breaks and other control characters become blanks.
[[nodiscard]] QString inOneLine(QString text);

} // namespace kovamo
