#pragma once

#include "exchange/records/ZoneOffset.h"
#include "model/TransactionPresentation.h"

#include <QIODevice>
#include <string>

namespace kovamo {

class Store;

/// Writes a journal for plain-text accounting, as ledger and hledger read it: what came in and went
/// out of the account "Assets". Its balance is the sum of what was written.
class JournalWriter {
  public:
    /// Requires: `device` is open for writing and outlives the writer.
    explicit JournalWriter(QIODevice& device) : m_device(device) {}

    /// Writes an entry on the day of the start. One without a date that a journal can say, of the
    /// years 1400 to 9999, becomes a comment. Returns whether all could be written so far; the
    /// device's errorString() tells why not.
    bool write(const TransactionPresentation& transaction);

    /// Writes what is still buffered; to be called at the end.
    [[nodiscard]] bool flush();

    /// How many entries were written.
    [[nodiscard]] qint64 count() const { return m_count; }

  private:
    QIODevice& m_device;
    ZoneOffset m_zone;
    std::string m_text;
    qint64 m_count = 0;
    bool m_isWritten = true;
};

/// Writes all records of `store`, the recurring ones once for each month or year from their start
/// to their end or to `until`. Returns how many entries, or nothing where the device cannot be
/// written to. Throws StoreError where the store cannot be read.
[[nodiscard]] std::optional<qint64> exportJournal(Store& store, QIODevice& device, Instant until);

} // namespace kovamo
