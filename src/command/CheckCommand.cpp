#include "Call.h"
#include "Commands.h"
#include "Output.h"
#include "TransactionCheck.h"
#include "model/Transaction.h"
#include "platform/objectstore/file/StoreError.h"

namespace kovamo {

namespace {

struct Tally {
    std::int64_t records = 0;
    std::int64_t wrong = 0;
};

Tally checkRecords(StoreInspection& store) {
    TransactionCheck check;
    Tally tally;
    store.forEach([&](ObjectID objectID, StoreInspection::Record record) {
        const QStringList faults = check.faultsOf(record);
        ++tally.records;
        tally.wrong += faults.isEmpty() ? 0 : 1;
        if (!faults.isEmpty())
            print(nameOf(objectID, record) + u": " + faults.join(QStringLiteral("; ")) + u'\n');
    });
    return tally;
}

ExitStatus run(const Call& call) {
    const QString path = call.storePath();
    StoreInspection store(path, Transaction::entity());
    const QStringList faults = store.fileFaults();
    for (const QString& fault : faults)
        print(path + u": " + fault + u'\n');
    const Tally tally = checkRecords(store);
    const bool isSound = faults.isEmpty() && tally.wrong == 0;
    print(isSound ? QStringLiteral("Nothing is wrong with %1 records.\n").arg(tally.records)
                  : QStringLiteral("The file has %1 faults, and %2 of %3 records have some.\n")
                        .arg(faults.size())
                        .arg(tally.wrong)
                        .arg(tally.records));
    return isSound ? ExitStatus::done : ExitStatus::notDone;
}

} // namespace

Command checkCommand() {
    return {.name = QStringLiteral("check"),
            .summary =
                QStringLiteral("Look for damage, and for records that a screen cannot show."),
            .options = {},
            .operand = {},
            .run = run};
}

} // namespace kovamo
