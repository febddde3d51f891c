#pragma once

#include "exchange/records/Row.h"

#include <QMap>
#include <optional>
#include <vector>

namespace kovamo {

/// Which field of a statement is what, by their numbers from 0.
struct StatementColumns {
    std::size_t date = 0;
    /// Those that may tell what the money was for, the best one first.
    std::vector<std::size_t> titles;
    /// The amount with its sign, or else the two amounts without.
    std::optional<std::size_t> amount;
    std::optional<std::size_t> debit;
    std::optional<std::size_t> credit;
    /// Says in a word whether money came or went.
    std::optional<std::size_t> kind;
    std::optional<std::size_t> emoji;
};

/// The columns that a line names in a common language, or by the words that `own` has for "date",
/// "title", "amount", "debit", "credit", "kind" and "emoji". Nothing where it is no header: it
/// names no date, or no amount.
[[nodiscard]] std::optional<StatementColumns>
statementColumns(std::span<const Cell> fields, const QMap<QString, QString>& own = {});

/// Whether a word of the kind column says that money came; nothing for a word that is not known.
[[nodiscard]] std::optional<bool> isEarningWord(const QString& word);

/// A text of a statement: UTF-8, or else as Windows-1252 has it, of which Latin-1 is a part.
[[nodiscard]] QString statementText(const Cell& cell);

} // namespace kovamo
