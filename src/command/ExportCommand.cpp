#include "Call.h"
#include "Commands.h"
#include "OpenStore.h"
#include "Output.h"
#include "Progress.h"
#include "exchange/Export.h"
#include "exchange/Journal.h"
#include "ledger/Recurrence.h"
#include "ledger/TransactionContainer.h"

#include <QFileInfo>

namespace kovamo {

namespace {

const QStringList formats{QStringLiteral("csv"), QStringLiteral("json"), QStringLiteral("ledger")};

ExchangeFormat formatOf(const Call& call) {
    const auto byName = formatNamed(call.choice("format", formats));
    const auto bySuffix = formatOfFile(call.operand());
    return call.isSet("format") || !bySuffix ? *byName : *bySuffix;
}

/// What tells whether a record is in a time frame.
std::function<bool(std::span<const Value>)> filterOf(TimeFrame frame) {
    return [period = periodBounds(frame), slots = monthSlots(frame),
            calendar = std::make_shared<Calendar>()](std::span<const Value> values) {
        return isInFrame(TransactionPresentation(values), period, slots, *calendar);
    };
}

bool writeRecords(OpenStore& opened, ExchangeFormat format, std::optional<TimeFrame> frame,
                  QIODevice& device) {
    const auto isInFrame = frame ? filterOf(*frame) : nullptr;
    const FetchRequest all = Transaction::fetchRequest();
    Progress progress("Exporting", static_cast<qint64>(opened.store.count(all)));
    qint64 done = 0;
    const auto accepts = [&](std::span<const Value> values) {
        if (++done % 1024 == 0)
            progress.show(done);
        return !isInFrame || isInFrame(values);
    };
    return exportRecords(opened.store, format, device, accepts).has_value();
}

bool writeJournal(OpenStore& opened, std::optional<TimeFrame> frame, QIODevice& device) {
    if (!frame)
        return exportJournal(opened.store, device, Clock::now()).has_value();
    QList<SharedPresentation> transactions;
    gatherTransactions(*frame, opened.context, transactions);
    JournalWriter journal(device);
    for (const TransactionPresentation& transaction : transactions)
        journal.write(transaction);
    return journal.flush();
}

ExitStatus run(const Call& call) {
    const ExchangeFormat format = formatOf(call);
    const auto frame = call.frame();
    if (QFileInfo(call.operand()) == QFileInfo(call.storePath()))
        throw CommandFailure{call.operand() + u" is the store itself."};
    OpenStore opened(call.storePath(), Store::Access::read);
    OutputFile output(call.operand());
    if (format == ExchangeFormat::ledger ? !writeJournal(opened, frame, output.device())
                                         : !writeRecords(opened, format, frame, output.device()))
        output.fail();
    output.commit();
    return ExitStatus::done;
}

} // namespace

Command exportCommand() {
    return {
        .name = QStringLiteral("export"),
        .summary = QStringLiteral("Write the records to a file, to be imported again as they are."),
        .options = {formatOption(formats),
                    frameOption(QStringLiteral("Only the records of a time frame: the current "
                                               "month, three months or twelve."))},
        .operand = Operand{QStringLiteral("FILE"),
                           QStringLiteral("The file; standard output where it is - or missing.")},
        .run = run};
}

} // namespace kovamo
