#pragma once

#include <QByteArray>
#include <QIODevice>
#include <string_view>

namespace kovamo {

/// A device's lines, one after the other; it holds little more than one in memory. CR, LF and both
/// together end a line. A byte order mark of UTF-8 at the start is skipped.
class LineReader {
  public:
    /// The longest line, in bytes: more is no file of records, and no header.
    static constexpr qsizetype longestRecord = 64 * 1024 * 1024;
    static constexpr qsizetype longestHeader = 1024 * 1024;

    /// Requires: `device` is open for reading and outlives the reader.
    explicit LineReader(QIODevice& device, qsizetype longest = longestRecord)
        : m_device(device), m_longest(longest) {}

    /// How long a line may be, and a record of several lines, in bytes.
    [[nodiscard]] qsizetype longest() const { return m_longest; }
    void setLongest(qsizetype longest) { m_longest = longest; }

    /// The next line with its end, valid until the next call; empty at the end of the device.
    /// Throws a Fault for a line that is too long; the next call continues after what was read.
    [[nodiscard]] std::string_view next();

    /// The number of the line that next() returned, from 1.
    [[nodiscard]] qint64 number() const { return m_number; }

    /// How many bytes have been read.
    [[nodiscard]] qint64 position() const { return m_position; }

  private:
    bool fill();

    QIODevice& m_device;
    qsizetype m_longest;
    QByteArray m_buffer;
    qsizetype m_start = 0;
    qsizetype m_end = 0;
    qint64 m_number = 0;
    qint64 m_position = 0;
};

} // namespace kovamo
