#pragma once

#include "Row.h"

#include <QIODevice>
#include <memory>

namespace kovamo {

/// How many amounts were rounded to whole numbers, and what was read less what they became, in
/// hundredths.
struct Rounding {
    qint64 count = 0;
    qint64 hundredths = 0;
};

/// The records of a file, one after the other, as values of a transaction.
class RecordReader {
  public:
    virtual ~RecordReader() = default;

    /// Reads the next record; returns whether there is one. Throws a Fault for one that cannot be
    /// read; the next call continues after it.
    [[nodiscard]] virtual bool next(std::vector<Value>& values) = 0;

    /// The number of the line on which the record begins, from 1.
    [[nodiscard]] virtual qint64 line() const = 0;

    /// What was rounded so far; nothing where the file has ids and whole numbers of its own.
    [[nodiscard]] virtual const Rounding* rounding() const { return nullptr; }

    /// How many bytes of the file have been read.
    [[nodiscard]] virtual qint64 position() const = 0;
};

} // namespace kovamo
