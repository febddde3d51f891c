#include "Import.h"

#include "CsvRecordReader.h"
#include "JsonReader.h"
#include "KnownRecords.h"
#include "model/Transaction.h"
#include "platform/objectstore/BulkWrite.h"

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
        const auto [standing, id] = known.take(nextID, values);
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
        if (options.progress && reader->position() >= told + step) {
            told = reader->position();
            if (!options.progress(told)) {
                report.isRefused = true;
                return report;
            }
        }
    }
    if (report.faultCount > 0 && !options.skipBad)
        report.isRefused = true;
    return report;
}

} // namespace

std::unique_ptr<RecordReader> makeRecordReader(QIODevice& device, const ImportOptions& options) {
    if (options.format == ExchangeFormat::json)
        return std::make_unique<JsonReader>(device);
    auto lines = std::make_unique<LineReader>(device);
    CsvReader header(*lines, ',');
    if (!header.next())
        throw Fault{QStringLiteral("The file is empty")};
    auto columns = ownHeader(header.fields());
    if (!columns)
        throw Fault{QStringLiteral("The file has not the columns of a record")};
    return std::make_unique<CsvRecordReader>(std::move(lines), *std::move(columns));
}

ImportReport planImport(Store& store, QIODevice& device, const ImportOptions& options) {
    return run(store, device, options, nullptr);
}

ImportReport importRecords(Store& store, QIODevice& device, const ImportOptions& options) {
    BulkWrite write(store);
    ImportReport report = run(store, device, options, &write);
    if (!report.isRefused)
        write.commit();
    return report;
}

} // namespace kovamo
