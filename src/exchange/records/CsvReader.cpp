#include "CsvReader.h"

#include <new>

namespace kovamo {

namespace {

/// Blanks belong to a field, which libcsv would trim.
int isNoSpace(unsigned char) {
    return 0;
}

} // namespace

CsvReader::CsvReader(LineReader& lines, char separator, bool isLenient)
    : m_lines(lines), m_separator(separator), m_isLenient(isLenient) {
    begin();
}

CsvReader::~CsvReader() {
    csv_free(&m_parser);
}

void CsvReader::begin() {
    const int options = CSV_EMPTY_IS_NULL | CSV_STRICT_FINI | (m_isLenient ? 0 : CSV_STRICT);
    csv_init(&m_parser, static_cast<unsigned char>(options));
    csv_set_delim(&m_parser, static_cast<unsigned char>(m_separator));
    csv_set_space_func(&m_parser, isNoSpace);
    csv_set_blk_size(&m_parser, 4096);
}

void CsvReader::failParsing(const QString& what) {
    const bool lacksMemory = csv_error(&m_parser) == CSV_ENOMEM;
    csv_free(&m_parser);
    begin();
    if (lacksMemory)
        throw std::bad_alloc();
    throw Fault{what};
}

void CsvReader::endField(const void* text, std::size_t size) {
    if (m_count == m_fields.size())
        m_fields.emplace_back();
    Cell& field = m_fields[m_count++];
    if (text)
        field.set({static_cast<const char*>(text), size});
    else
        field.clear();
}

void CsvReader::feed(std::string_view line) {
    const auto endField = [](void* text, std::size_t size, void* self) {
        static_cast<CsvReader*>(self)->endField(text, size);
    };
    const auto endRecord = [](int, void* self) { static_cast<CsvReader*>(self)->m_isWhole = true; };
    if (line.empty()) {
        if (csv_fini(&m_parser, endField, endRecord, this) != 0)
            failParsing(QStringLiteral("A quoted text has no end"));
    } else if (csv_parse(&m_parser, line.data(), line.size(), endField, endRecord, this) !=
               line.size()) {
        failParsing(QStringLiteral("A quotation mark is out of place"));
    }
}

bool CsvReader::next() {
    m_count = 0;
    m_isWhole = false;
    for (qsizetype size = 0;;) {
        if (size == 0)
            m_line = m_lines.number() + 1;
        const std::string_view line = m_lines.next();
        feed(line);
        if (m_isWhole)
            return true;
        if (line.empty())
            return false;
        const bool isEmptyLine = size == 0 && (line[0] == '\n' || line[0] == '\r');
        size += isEmptyLine ? 0 : qsizetype(line.size());
        if (size > m_lines.longest())
            failParsing(QStringLiteral("A quoted text is too long"));
    }
}

} // namespace kovamo
