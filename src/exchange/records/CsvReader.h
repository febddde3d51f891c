#pragma once

#include "LineReader.h"
#include "Row.h"

#include <csv.h>

namespace kovamo {

/// The records of a CSV file after RFC 4180, read as a stream.
class CsvReader {
  public:
    /// A lenient reader takes quotes amid a field as they are. Requires: `lines` outlives the
    /// reader.
    CsvReader(LineReader& lines, char separator, bool isLenient = false);
    ~CsvReader();
    Q_DISABLE_COPY_MOVE(CsvReader)

    [[nodiscard]] char separator() const { return m_separator; }

    /// Reads the next record, without empty lines; returns whether there is one. Throws a Fault for
    /// a malformed one; the next call continues with the line after it.
    [[nodiscard]] bool next();

    /// The fields of the record. A field without a character is absent, a quoted empty one is not.
    [[nodiscard]] std::span<const Cell> fields() const { return {m_fields.data(), m_count}; }

    /// The number of the line on which the record begins, from 1.
    [[nodiscard]] qint64 line() const { return m_line; }

  private:
    void begin();
    void feed(std::string_view line);
    [[noreturn]] void failParsing(const QString& what);
    void endField(const void* text, std::size_t size);

    LineReader& m_lines;
    char m_separator;
    bool m_isLenient;
    csv_parser m_parser{};
    std::vector<Cell> m_fields;
    std::size_t m_count = 0;
    bool m_isWhole = false;
    qint64 m_line = 0;
};

} // namespace kovamo
