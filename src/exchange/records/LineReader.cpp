#include "LineReader.h"

#include "Row.h"

#include <cstring>

namespace kovamo {

bool LineReader::fill() {
    constexpr qsizetype step = 256 * 1024;
    if (m_start > 0) {
        std::memmove(m_buffer.data(), m_buffer.constData() + m_start, std::size_t(m_end - m_start));
        m_end -= m_start;
        m_start = 0;
    }
    if (m_buffer.size() < m_end + step)
        m_buffer.resize(m_end + step);
    const qint64 count = m_device.read(m_buffer.data() + m_end, step);
    if (count <= 0)
        return false;
    const bool isFirst = m_position == 0;
    m_end += count;
    m_position += count;
    if (isFirst &&
        std::string_view(m_buffer.constData(), std::size_t(m_end)).starts_with("\xef\xbb\xbf"))
        m_start = 3;
    return true;
}

std::string_view LineReader::next() {
    ++m_number;
    for (qsizetype seen = 0;;) {
        const char* const from = m_buffer.constData() + m_start;
        const auto length = std::size_t(m_end - m_start);
        const auto at = std::string_view(from, length).find_first_of("\r\n", std::size_t(seen));
        const bool isWhole = at < length && (from[at] == '\n' || at + 1 < length);
        if (isWhole) {
            const std::size_t size = at + (from[at] == '\r' && from[at + 1] == '\n' ? 2 : 1);
            m_start += qsizetype(size);
            return {from, size};
        }
        if (m_end - m_start > m_longest) {
            m_start = m_end;
            throw Fault{QStringLiteral("The line is too long")};
        }
        seen = qsizetype(std::min(at, length));
        if (!fill()) {
            m_start = m_end;
            return {m_buffer.constData() + m_end - length, length};
        }
    }
}

} // namespace kovamo
