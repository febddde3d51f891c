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

/// One pass through a file. What it adds and changes goes to `write`, if that is given.
class Pass {
  public:
    Pass(Store& store, const ImportOptions& options, BulkWrite* write)
        : m_store(store), m_options(options), m_write(write) {}

    [[nodiscard]] ImportReport through(QIODevice& device);

  private:
    [[nodiscard]] bool readNext(std::vector<Value>& values);
    void take(std::span<const Value> values);
    [[nodiscard]] bool isHopeless() const;
    [[nodiscard]] bool isStopped();
    [[nodiscard]] ImportReport refused();
    void noteFault(qint64 line, const Fault& why) {
        note(m_report.faults, m_report.faultCount, line, why.text);
    }

    Store& m_store;
    const ImportOptions& m_options;
    BulkWrite* m_write;
    std::unique_ptr<RecordReader> m_reader;
    KnownRecords m_known;
    ObjectID m_nextID = 0;
    qint64 m_told = 0;
    ImportReport m_report;
};

ImportReport Pass::through(QIODevice& device) {
    try {
        m_reader = makeRecordReader(device, m_options);
    } catch (const Fault& why) {
        noteFault(1, why);
        return refused();
    }
    m_store.forEach([&](ObjectID id, std::span<const Value> values) {
        m_known.addStored(id, values);
        return true;
    });
    m_nextID = m_write ? m_write->nextID() : 0;
    for (std::vector<Value> values; readNext(values);)
        if (isHopeless() || isStopped())
            return refused();
    if (const Rounding* rounding = m_reader->rounding()) {
        m_report.rounded = rounding->count;
        m_report.roundedSum = rounding->hundredths;
    }
    m_report.isRefused = m_report.faultCount > 0 && !m_options.skipBad;
    return m_report;
}

bool Pass::readNext(std::vector<Value>& values) {
    try {
        if (!m_reader->next(values))
            return false;
        take(values);
    } catch (const Fault& why) {
        noteFault(m_reader->line(), why);
    }
    return true;
}

void Pass::take(std::span<const Value> values) {
    if (const QString why = m_options.objection ? m_options.objection(values) : QString();
        !why.isEmpty())
        throw Fault{why};
    const auto [standing, id] = m_known.take(m_nextID, values, m_reader->rounding() != nullptr);
    switch (standing) {
    case KnownRecords::Standing::added:
        ++m_report.added;
        ++m_nextID;
        if (m_write)
            m_write->insert(values);
        break;
    case KnownRecords::Standing::changed:
        ++m_report.changed;
        if (m_write)
            m_write->update(id, values);
        break;
    case KnownRecords::Standing::same:
        ++m_report.same;
        break;
    case KnownRecords::Standing::older:
        ++m_report.older;
        break;
    case KnownRecords::Standing::conflict:
        note(m_report.conflicts, m_report.conflictCount, m_reader->line(),
             QStringLiteral("%1 is stored with the same timestamp and other contents")
                 .arg(nameOf(values)));
        break;
    }
}

/// Whether this is no file of records. It may never end, as a device does.
bool Pass::isHopeless() const {
    constexpr qint64 hopeless = 1000;
    return m_report.faultCount == hopeless && m_report.added + m_report.same == 0;
}

bool Pass::isStopped() {
    constexpr qint64 step = 256 * 1024;
    if (!m_options.progress || m_reader->position() < m_told + step)
        return false;
    m_told = m_reader->position();
    return !m_options.progress(m_told);
}

ImportReport Pass::refused() {
    m_report.isRefused = true;
    return m_report;
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
    return Pass(store, options, nullptr).through(spooled ? *spooled : device);
}

ImportReport importRecords(Store& store, QIODevice& device, const ImportOptions& options) {
    const auto spooled = spool(device);
    BulkWrite write(store);
    ImportReport report = Pass(store, options, &write).through(spooled ? *spooled : device);
    if (!report.isRefused)
        write.commit();
    return report;
}

} // namespace kovamo
