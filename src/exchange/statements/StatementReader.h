#pragma once

#include "StatementAmounts.h"
#include "StatementColumns.h"
#include "StatementDates.h"
#include "exchange/records/CsvReader.h"
#include "exchange/records/ImportOptions.h"
#include "exchange/records/RecordReader.h"

#include <QHash>

namespace kovamo {

/// The records of a bank's statement or of another tracker: a CSV file without ids, separated by
/// commas, semicolons or tabs, in UTF-8 or Latin-1. A record's id is made of its day, its amount
/// and direction, its title and its number among equals, so that the same line gives the same
/// record however often it comes; its timestamp is its day's noon, so that an edit is newer.
class StatementReader : public RecordReader {
  public:
    /// Goes through the file once to learn how it writes dates and amounts. Throws a Fault where
    /// that is not clear, or where it has no header. Requires that `device` can be read again from
    /// where it stands and outlives the reader.
    StatementReader(QIODevice& device, const ImportOptions& options);

    [[nodiscard]] bool next(std::vector<Value>& values) override;
    [[nodiscard]] qint64 line() const override { return m_records->line(); }
    [[nodiscard]] qint64 position() const override { return m_lines->position(); }
    [[nodiscard]] const Rounding* rounding() const override { return &m_rounding; }

  private:
    struct Money {
        bool isEarning = false;
        StatementAmount amount;
    };

    [[nodiscard]] bool findHeader(char separator);
    void learn();
    [[nodiscard]] QString text(std::size_t field) const;
    [[nodiscard]] Money money() const;
    [[nodiscard]] QString title() const;

    QIODevice& m_device;
    const ImportOptions& m_options;
    qint64 m_start;
    std::unique_ptr<LineReader> m_lines;
    std::unique_ptr<CsvReader> m_records;
    StatementColumns m_columns;
    StatementDates m_dates;
    StatementAmounts m_amounts;
    ZoneOffset m_zone;
    Rounding m_rounding;
    QHash<QUuid, int> m_equals;
};

} // namespace kovamo
