// The bytes of a store: it is refused and left as it is, or all that the screens ask of it is
// answered, more than once in the same words and without a write.

#include "Fuzz.h"
#include "editing/TransactionLine.h"
#include "editing/TransactionsView.h"
#include "ledger/TransactionContainer.h"
#include "platform/objectstore/file/StoreError.h"
#include "platform/objectstore/store/Store.h"

#include <QFile>

using namespace kovamo;

namespace {

/// What a program that only looks shows of the store; empty when it is refused.
QStringList shown(const QString& path) {
    QStringList words;
    Store store(path, Transaction::entity());
    ManagedObjectContext context(store, Transaction::entity());
    words += QStringLiteral("opened");
    try {
        for (const TimeFrame timeFrame : {0, 1, 3}) {
            TransactionContainer container;
            container.fetchTransactions(timeFrame, context);
            for (const TransactionPresentation& row : container.transactions())
                words += signedAmount(row.isPositive, row.amount);
        }
        const TransactionsView screen(context);
        for (int row = 0; row < screen.rowCount(); ++row)
            words += screen.data(screen.index(row), TransactionsView::LineRole)
                         .value<TransactionLine>()
                         .sentence;
    } catch (const Stopped&) {
        words += QStringLiteral("stopped");
    }
    return words;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString path = scratchPath(QStringLiteral("store.sqlite"));
    for (const char* suffix : {"-wal", "-shm", "-journal"})
        QFile::remove(path + QLatin1String(suffix));
    writeFile(path, {data, size});
    Clock::setSource([] { return Instant(std::chrono::milliseconds(1'715'767'200'000)); });
    try {
        const QStringList first = shown(path);
        const QByteArray opened = readFile(path);
        check(shown(path) == first, "the store shows the same again");
        check(readFile(path) == opened, "looking at it does not write");
    } catch (const StoreError&) {
        check(readFile(path) ==
                  QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)),
              "a refused store stays as it is");
    }
    return 0;
}
