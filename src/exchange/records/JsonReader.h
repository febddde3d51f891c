#pragma once

#include "LineReader.h"
#include "RecordReader.h"

namespace kovamo {

/// Records as JSON, one object a line: the columns' names and texts, the amount a number, null for
/// an absent text. Other names are ignored.
class JsonReader : public RecordReader {
  public:
    explicit JsonReader(QIODevice& device) : m_lines(device) {}

    [[nodiscard]] bool next(std::vector<Value>& values) override;
    [[nodiscard]] qint64 line() const override { return m_lines.number(); }
    [[nodiscard]] qint64 position() const override { return m_lines.position(); }

  private:
    void read(std::string_view line);

    LineReader m_lines;
    ZoneOffset m_zone;
    Row m_row;
};

} // namespace kovamo
