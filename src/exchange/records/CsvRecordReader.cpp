#include "CsvRecordReader.h"

#include <algorithm>

namespace kovamo {

std::optional<CsvHeader> ownHeader(std::span<const Cell> fields) {
    using enum Column;
    CsvHeader header;
    for (const Cell& field : fields) {
        const auto name = std::ranges::find(columnNames, field.text);
        const auto column = Column(name - columnNames.begin());
        header.push_back(name == columnNames.end() ? std::nullopt : std::optional(column));
    }
    for (const Column needed : {id, date, title, emoji, amount, kind, timestamp})
        if (std::ranges::count(header, std::optional(needed)) != 1)
            return std::nullopt;
    return header;
}

CsvRecordReader::CsvRecordReader(std::unique_ptr<LineReader> lines, CsvHeader header)
    : m_lines(std::move(lines)), m_records(*m_lines, ','), m_header(std::move(header)),
      m_hasEnds(std::ranges::count(m_header, std::optional(Column::until)) +
                    std::ranges::count(m_header, std::optional(Column::endDate)) >
                0) {}

bool CsvRecordReader::next(std::vector<Value>& values) {
    if (!m_records.next())
        return false;
    const std::span<const Cell> fields = m_records.fields();
    if (fields.size() != m_header.size())
        throw Fault{QStringLiteral("There are %1 fields, and %2 in the header")
                        .arg(fields.size())
                        .arg(m_header.size())};
    for (std::size_t at = 0; at < fields.size(); ++at)
        if (const auto column = m_header[at])
            m_row[*column] = fields[at];
    if (!m_hasEnds)
        endWhereItBegins(m_row);
    readRow(m_row, values, m_zone);
    return true;
}

} // namespace kovamo
