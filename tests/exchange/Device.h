#pragma once

#include "exchange/Export.h"
#include "exchange/Import.h"
#include "model/Transaction.h"
#include "platform/objectstore/store/BulkWrite.h"
#include "support/World.h"

#include <QBuffer>

namespace kovamo {

using Record = std::vector<Value>;

/// "line: what is wrong" of each line that was noted.
inline std::string faults(const ImportReport& report) {
    std::string texts;
    for (const LineFault& fault : report.faults)
        texts += std::to_string(fault.line) + ": " + fault.text.toStdString() + '\n';
    return texts;
}

/// A store of its own in the world's folder.
struct Device {
    explicit Device(const QString& name)
        : store(World::folder() + u'/' + name, Transaction::entity()) {}

    void add(const std::vector<Record>& records) {
        BulkWrite write(store);
        for (const Record& record : records)
            write.insert(record);
        write.commit();
    }

    [[nodiscard]] std::vector<Record> records() {
        std::vector<Record> records;
        store.forEach([&](ObjectID, std::span<const Value> values) {
            records.emplace_back(values.begin(), values.end());
            return true;
        });
        return records;
    }

    [[nodiscard]] QByteArray file(ExchangeFormat format = ExchangeFormat::csv) {
        QBuffer buffer;
        buffer.open(QBuffer::WriteOnly);
        EXPECT_TRUE(exportRecords(store, format, buffer));
        return buffer.data();
    }

    ImportReport take(QByteArray file, ImportOptions options = {}) {
        QBuffer buffer(&file);
        buffer.open(QBuffer::ReadOnly);
        const ImportReport plan = planImport(store, buffer, options);
        buffer.seek(0);
        const ImportReport report = importRecords(store, buffer, options);
        EXPECT_EQ(std::tie(plan.added, plan.changed, plan.same, plan.older, plan.conflictCount),
                  std::tie(report.added, report.changed, report.same, report.older,
                           report.conflictCount));
        return report;
    }

    Store store;
};

} // namespace kovamo
