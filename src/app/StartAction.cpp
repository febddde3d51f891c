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

StartAction startAction(const QByteArray& word) {
    for (const StartAction action : {StartAction::newTransaction, StartAction::allTransactions})
        if (word == wordOf(action))
            return action;
    return StartAction::none;
}

} // namespace kovamo
