#pragma once

#include "ledger/TimeFrame.h"
#include "model/Transaction.h"

#include <QString>
#include <optional>
#include <string>
#include <vector>

namespace kovamo {

/// A word that the user looks for. A transaction has it where its title or the name of its emoji
/// contains it; and also
/// - a number, in any script's digits, with its currency, its direction and its grouping or
///   without, where the amount begins with it: "48", "$480" and "1,200";
/// - "+" or "earning", "-" or "spending", where the money goes that way;
/// - "monthly", "yearly", where it recurs so;
/// - a year of four digits, where it starts in it, or recurs in it.
struct SearchWord {
    /// As it is searched for in texts: folded, in UTF-8.
    std::string text;
    /// The digits with which an amount begins; empty for no number.
    std::string digits;
    std::optional<bool> isPositive;
    /// The type of a recurrence; empty for none.
    QString recurringType;
    /// The year in the user's calendar.
    std::optional<Period> year;
};

/// The words of what the user typed. A transaction is found that has all of them.
[[nodiscard]] std::vector<SearchWord> searchWords(const QString& query);

/// A text as words are searched for in it.
[[nodiscard]] std::string searchText(const QString& text);

} // namespace kovamo
