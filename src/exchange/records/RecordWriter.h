#pragma once

#include "ExchangeFormat.h"
#include "Row.h"

#include <QIODevice>

namespace kovamo {

/// Writes records to a device as CSV or JSON.
class RecordWriter {
  public:
    /// Begins with the header that the format has. Requires that `device` is open for writing and
    /// outlives the writer, and that the format is not a journal.
    RecordWriter(QIODevice& device, ExchangeFormat format);

    /// Writes the values of a transaction. Returns whether all could be written so far; the
    /// device's errorString() tells why not.
    bool write(std::span<const Value> values);

    /// Writes what is still buffered; to be called at the end.
    [[nodiscard]] bool flush();

    /// How many records were handed in.
    [[nodiscard]] qint64 count() const { return m_count; }

  private:
    QIODevice& m_device;
    void (*m_append)(std::string& text, const Row& row);
    ZoneOffset m_zone;
    Row m_row;
    std::string m_text;
    qint64 m_count = 0;
    bool m_isWritten = true;
};

} // namespace kovamo
