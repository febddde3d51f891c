#include "Import.h"

#include "KnownRecords.h"
#include "exchange/records/CsvRecordReader.h"
#include "exchange/records/JsonReader.h"
#include "exchange/statements/StatementReader.h"
#include "model/Transaction.h"
#include "platform/objectstore/file/StoreError.h"
#include "platform/objectstore/store/BulkWrite.h"

#include <QTemporaryFile>

namespace kovamo {

namespace {

void note(std::vector<LineFault>& list, qint64& count, qint64 line, const QString& text) {
    constexpr std::size_t most = 10;
    ++count;
    if (list.size() < most)
        list.push_back({line, text});
}

QString nameOf(std::span<const Value> values) {
    return std::get<QUuid>(values[Transaction::Id]).toString(QUuid::WithoutBraces);
}

/// A temporary file with what a pipe delivers; null for a device that can be read again. Without
/// it, a slow pipe would keep the store locked.
std::unique_ptr<QFile> spool(QIODevice& device) {
    if (!device.isSequential())
        return nullptr;
    auto file = std::make_unique<QTemporaryFile>();
    const auto require = [&](bool isDone) {
        if (!isDone)
            fail(file->errorString(), file->error(), file->fileName());
    };
    require(file->open());
    QByteArray bytes(256 * 1024, Qt::Uninitialized);
    for (qint64 size = 0; (size = device.read(bytes.data(), bytes.size())) > 0;)
        require(file->write(bytes.constData(), size) == size);
    require(file->seek(0));
    return file;
}

/// Goes through a file. What it adds and changes goes to `write`, if that is given.
ImportReport run(Store& store, QIODevice& device, const ImportOptions& options, BulkWrite* write) {
    ImportReport report;
    const auto fault = [&](qint64 line, const Fault& why) {
        note(report.faults, report.faultCount, line, why.text);
    };
    std::unique_ptr<RecordReader> reader;
    try {
        reader = makeRecordReader(device, options);
    } catch (const Fault& why) {
        fault(1, why);
        report.isRefused = true;
        return report;
    }
    KnownRecords known;
    store.forEach([&](ObjectID id, std::span<const Value> values) {
        known.addStored(id, values);
        return true;
    });
    ObjectID nextID = write ? write->nextID() : 0;
    const auto take = [&](std::span<const Value> values) {
        const auto [standing, id] = known.take(nextID, values, reader->rounding() != nullptr);
        switch (standing) {
        case KnownRecords::Standing::added:
            ++report.added;
            ++nextID;
            if (write)
                write->insert(values);
            break;
        case KnownRecords::Standing::changed:
            ++report.changed;
            if (write)
                write->update(id, values);
            break;
        case KnownRecords::Standing::same:
            ++report.same;
            break;
        case KnownRecords::Standing::older:
            ++report.older;
            break;
        case KnownRecords::Standing::conflict:
            note(report.conflicts, report.conflictCount, reader->line(),
                 QStringLiteral("%1 is stored with the same timestamp and other contents")
                     .arg(nameOf(values)));
            break;
        }
    };
    std::vector<Value> values;
    constexpr qint64 step = 256 * 1024;
    qint64 told = 0;
    for (;;) {
        try {
            if (!reader->next(values))
                break;
            take(values);
        } catch (const Fault& why) {
            fault(reader->line(), why);
        }
        constexpr qint64 hopeless = 1000;
        if (report.faultCount == hopeless && report.added + report.same == 0) {
            report.isRefused = true; // no file of records, and it may never end
            return report;
        }
        if (options.progress && reader->position() >= told + step) {
            told = reader->position();
            if (!options.progress(told)) {
                report.isRefused = true;
                return report;
            }
        }
    }
    if (const Rounding* rounding = reader->rounding()) {
        report.rounded = rounding->count;
        report.roundedSum = rounding->hundredths;
    }
    report.isRefused = report.faultCount > 0 && !options.skipBad;
    return report;
}

} // namespace

std::unique_ptr<RecordReader> makeRecordReader(QIODevice& device, const ImportOptions& options) {
    if (options.format == ExchangeFormat::json)
        return std::make_unique<JsonReader>(device);
    const qint64 start = device.pos();
    if (options.columns.isEmpty()) {
        auto lines = std::make_unique<LineReader>(device, LineReader::longestHeader);
        CsvReader header(*lines, ',', true);
        if (!header.next())
            throw Fault{QStringLiteral("The file is empty")};
        if (auto columns = ownHeader(header.fields())) {
            lines->setLongest(LineReader::longestRecord);
            return std::make_unique<CsvRecordReader>(std::move(lines), *std::move(columns));
        }
    }
    device.seek(start);
    return std::make_unique<StatementReader>(device, options);
}

ImportReport planImport(Store& store, QIODevice& device, const ImportOptions& options) {
    const auto spooled = spool(device);
    return run(store, spooled ? *spooled : device, options, nullptr);
}

ImportReport importRecords(Store& store, QIODevice& device, const ImportOptions& options) {
    const auto spooled = spool(device);
    BulkWrite write(store);
    ImportReport report = run(store, spooled ? *spooled : device, options, &write);
    if (!report.isRefused)
        write.commit();
    return report;
}

} // namespace kovamo
