#pragma once

#include "CsvReader.h"
#include "RecordReader.h"

namespace kovamo {

/// The columns of a CSV file by its header: for each field the column of that name, if any.
using CsvHeader = std::vector<std::optional<Column>>;

/// The header of the app's own files, in any order and with other columns in between; nothing where
/// one of those is missing that such a file always has.
[[nodiscard]] std::optional<CsvHeader> ownHeader(std::span<const Cell> fields);

/// Records as the app writes them as CSV.
class CsvRecordReader : public RecordReader {
  public:
    /// Requires: `lines` stands behind a comma-separated header that says `header`.
    CsvRecordReader(std::unique_ptr<LineReader> lines, CsvHeader header);

    [[nodiscard]] bool next(std::vector<Value>& values) override;
    [[nodiscard]] qint64 line() const override { return m_records.line(); }
    [[nodiscard]] qint64 position() const override { return m_lines->position(); }

  private:
    std::unique_ptr<LineReader> m_lines;
    CsvReader m_records;
    CsvHeader m_header;
    bool m_hasEnds;
    ZoneOffset m_zone;
    Row m_row;
};

} // namespace kovamo
