#pragma once

#include "exchange/records/ImportOptions.h"
#include "exchange/records/RecordReader.h"

#include <vector>

namespace kovamo {

class Store;

/// A line that cannot be read.
struct LineFault {
    qint64 line = 0;
    QString text;
};

/// What an import did, or would do.
struct ImportReport {
    /// Records that the store did not have.
    qint64 added = 0;
    /// Records that were newer than the stored ones and took their place.
    qint64 changed = 0;
    /// Records that are stored already, with the same contents.
    qint64 same = 0;
    /// Records that are older than the stored ones, which stay.
    qint64 older = 0;
    /// Records as old as the stored ones but with other contents; the stored ones stay. The first
    /// ten, and their count.
    std::vector<LineFault> conflicts;
    qint64 conflictCount = 0;
    /// Lines that cannot be read: the first ten, and their count.
    std::vector<LineFault> faults;
    qint64 faultCount = 0;
    /// How many amounts of a statement were rounded to whole numbers, half away from zero, and what
    /// was read less what they became, in hundredths.
    qint64 rounded = 0;
    qint64 roundedSum = 0;
    /// Whether the file was refused, and nothing of it stored: for its faults, or because progress
    /// stopped it.
    bool isRefused = false;
};

/// A reader of `device`. Throws a Fault where that is no file of records at all. Requires that
/// `device` outlives the reader.
[[nodiscard]] std::unique_ptr<RecordReader> makeRecordReader(QIODevice& device,
                                                             const ImportOptions& options);

/// What importRecords() would do to `store`; writes nothing. Requires that `device` is open for
/// reading. Throws StoreError where the store cannot be read.
[[nodiscard]] ImportReport planImport(Store& store, QIODevice& device,
                                      const ImportOptions& options);

/// Takes the records of a file into `store`, all or none. A record is known by its id: the newer
/// timestamp wins, and of two as old the stored one stays. One without an id is known by its
/// contents and its number among equals. Nothing is deleted. The day's copy of the store is kept
/// before. Throws StoreError, and then the store is as it was.
[[nodiscard]] ImportReport importRecords(Store& store, QIODevice& device,
                                         const ImportOptions& options);

} // namespace kovamo
