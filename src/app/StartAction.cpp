#include "StartAction.h"

namespace kovamo {

QByteArray wordOf(StartAction action) {
    switch (action) {
    case StartAction::newTransaction:
        return "new-transaction";
    case StartAction::allTransactions:
        return "all-transactions";
    case StartAction::none:
        break;
    }
    return {};
}

QByteArray lineOf(const Start& start) {
    return wordOf(start.action) + '/' + start.file.toUtf8().toPercentEncoding();
}

Start startOf(const QByteArray& line) {
    Start start;
    const qsizetype end = line.indexOf('/');
    for (const StartAction action : {StartAction::newTransaction, StartAction::allTransactions})
        if (line.left(end) == wordOf(action))
            start.action = action;
    if (end >= 0)
        start.file = QString::fromUtf8(QByteArray::fromPercentEncoding(line.mid(end + 1)));
    return start;
}

} // namespace kovamo
