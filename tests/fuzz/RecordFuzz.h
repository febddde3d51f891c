#pragma once

#include "Fuzz.h"
#include "exchange/Import.h"
#include "exchange/records/RecordReader.h"
#include "exchange/records/RecordWriter.h"

#include <QBuffer>

namespace kovamo {

using Records = std::vector<std::vector<Value>>;

/// The records of a file that can be read.
inline Records recordsOf(QByteArray file, const ImportOptions& options) {
    Records records;
    QBuffer buffer(&file);
    buffer.open(QBuffer::ReadOnly);
    std::unique_ptr<RecordReader> reader;
    try {
        reader = makeRecordReader(buffer, options);
    } catch (const Fault&) {
        return records;
    }
    for (std::vector<Value> values;;) {
        try {
            if (!reader->next(values))
                return records;
            records.push_back(values);
        } catch (const Fault& fault) {
            check(!fault.text.isEmpty() && reader->line() > 0, "a fault has a text and a line");
        }
    }
}

/// Whatever a file holds, what is read from it goes out and comes in unchanged.
inline void checkReading(const QByteArray& file, const ImportOptions& options) {
    const Records records = recordsOf(file, options);
    for (const ExchangeFormat format : {ExchangeFormat::csv, ExchangeFormat::json}) {
        QBuffer buffer;
        buffer.open(QBuffer::WriteOnly);
        RecordWriter writer(buffer, format);
        for (const auto& values : records)
            writer.write(values);
        check(writer.flush() && recordsOf(buffer.data(), {.format = format}) == records,
              "what goes out comes in");
    }
}

} // namespace kovamo
