#include "Call.h"
#include "Commands.h"
#include "Output.h"
#include "ledger/TransactionCheck.h"
#include "model/Transaction.h"
#include "platform/objectstore/file/StoreError.h"

#include <QSet>
#include <QUuid>

namespace kovamo {

namespace {

struct Tally {
    std::int64_t records = 0;
    std::int64_t wrong = 0;
};

/// What names a record to its user: the identity and the title, in one line.
QString nameOf(ObjectID objectID, StoreInspection::Record record) {
    const auto* id = valueOf<QUuid>(record, Transaction::Id);
    const auto* title = valueOf<QString>(record, Transaction::Title);
    return (id ? id->toString(QUuid::WithoutBraces) : u"record " + QString::number(objectID)) +
           (title ? u" \"" + inOneLine(*title) + u'"' : QString());
}

Tally checkRecords(StoreInspection& store) {
    const TransactionCheck check;
    QSet<QUuid> ids;
    Tally tally;
    store.forEach([&](ObjectID objectID, StoreInspection::Record record) {
        QStringList faults = check.faultsOf(record);
        if (const auto* id = valueOf<QUuid>(record, Transaction::Id)) {
            if (ids.contains(*id))
                faults.append(QStringLiteral("another record has its id"));
            ids.insert(*id);
        }
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
