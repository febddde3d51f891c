#include "Call.h"
#include "Commands.h"
#include "OpenStore.h"
#include "Output.h"
#include "ledger/Balance.h"
#include "ledger/TransactionContainer.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace kovamo {

namespace {

const QStringList formats{QStringLiteral("text"), QStringLiteral("json")};

QString verdictName(std::int64_t balance) {
    return balance > 0   ? QStringLiteral("positive")
           : balance < 0 ? QStringLiteral("negative")
                         : QStringLiteral("neutral");
}

ExitStatus run(const Call& call) {
    const bool isJson = call.choice("format", formats) == u"json";
    const TimeFrame frame = call.frame().value_or(1);
    OpenStore opened(call.storePath(), Store::Access::read);
    QList<SharedPresentation> transactions;
    gatherTransactions(frame, opened.context, transactions);
    const std::int64_t balance = netBalance(transactions);
    if (isJson) {
        const QJsonObject object{{QStringLiteral("balance"), static_cast<qint64>(balance)},
                                 {QStringLiteral("transactions"), transactions.size()},
                                 {QStringLiteral("verdict"), verdictName(balance)}};
        print(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + u'\n');
    } else {
        print(verdictText(balance) + u'\n' + balanceText(balance) + u'\n');
    }
    return ExitStatus::done;
}

} // namespace

Command balanceCommand() {
    return {.name = QStringLiteral("balance"),
            .summary = QStringLiteral("Print the balance of a time frame and the verdict on it."),
            .options = {frameOption(), formatOption(formats)},
            .operand = {},
            .run = run};
}

} // namespace kovamo
