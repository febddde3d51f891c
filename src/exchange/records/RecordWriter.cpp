#include "RecordWriter.h"

#include <utility>

namespace kovamo {

namespace {

void appendCsvCell(std::string& text, const Cell& cell) {
    if (!cell.isPresent)
        return;
    const bool isPlain = !cell.text.empty() && cell.text.front() != ' ' &&
                         cell.text.back() != ' ' &&
                         cell.text.find_first_of(",\"\r\n\t") == std::string::npos;
    if (isPlain) {
        text += cell.text;
        return;
    }
    text += '"';
    for (const char character : cell.text) {
        if (character == '"')
            text += '"';
        text += character;
    }
    text += '"';
}

void appendCsv(std::string& text, const Row& row) {
    bool isFirst = true;
    for (const Cell& cell : row.cells()) {
        if (!std::exchange(isFirst, false))
            text += ',';
        appendCsvCell(text, cell);
    }
    text += "\r\n";
}

void appendJsonText(std::string& text, std::string_view words) {
    constexpr std::string_view digits = "0123456789abcdef";
    text += '"';
    for (const char character : words) {
        const auto code = static_cast<unsigned char>(character);
        if (character == '"' || character == '\\') {
            text += '\\';
            text += character;
        } else if (code < 0x20 || code == 0x7f) {
            text += "\\u00";
            text += digits[code >> 4U];
            text += digits[code & 0xfU];
        } else {
            text += character;
        }
    }
    text += '"';
}

void appendJson(std::string& text, const Row& row) {
    for (std::size_t column = 0; column < columnNames.size(); ++column) {
        const Cell& cell = row[Column(column)];
        text += column == 0 ? '{' : ',';
        appendJsonText(text, columnNames[column]);
        text += ':';
        if (!cell.isPresent)
            text += "null";
        else if (Column(column) == Column::amount)
            text += cell.text;
        else
            appendJsonText(text, cell.text);
    }
    text += "}\n";
}

Row headerRow() {
    Row header;
    for (std::size_t column = 0; column < columnNames.size(); ++column)
        header[Column(column)].set(columnNames[column]);
    return header;
}

} // namespace

RecordWriter::RecordWriter(QIODevice& device, ExchangeFormat format)
    : m_device(device), m_append(format == ExchangeFormat::json ? appendJson : appendCsv) {
    if (format != ExchangeFormat::json)
        appendCsv(m_text, headerRow());
}

bool RecordWriter::write(std::span<const Value> values) {
    constexpr std::size_t enough = 256 * 1024;
    fillRow(m_row, values, m_zone);
    m_append(m_text, m_row);
    ++m_count;
    return m_text.size() < enough || flush();
}

bool RecordWriter::flush() {
    const auto size = qint64(m_text.size());
    m_isWritten = m_isWritten && m_device.write(m_text.data(), size) == size;
    m_text.clear();
    return m_isWritten;
}

} // namespace kovamo
