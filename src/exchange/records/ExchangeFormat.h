#pragma once

#include <QString>
#include <optional>

namespace kovamo {

/// How records are written to a file: CSV after RFC 4180, JSON with one object a line, or a journal
/// for plain-text accounting, which is not read back.
enum class ExchangeFormat { csv, json, ledger };

/// The format "csv", "json" or "ledger"; nothing for any other name.
[[nodiscard]] std::optional<ExchangeFormat> formatNamed(QStringView name);

/// The format that a file's suffix tells: .csv, .tsv and .txt, .json, .jsonl and .ndjson, .ledger
/// and .journal, in any case; nothing for any other.
[[nodiscard]] std::optional<ExchangeFormat> formatOfFile(const QString& path);

} // namespace kovamo
