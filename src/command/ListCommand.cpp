#include "Call.h"
#include "Commands.h"
#include "OpenStore.h"
#include "Output.h"
#include "ledger/TransactionContainer.h"
#include "platform/foundation/Formatters.h"

namespace kovamo {

namespace {

const QStringList formats{QStringLiteral("text")};

ExitStatus run(const Call& call) {
    static_cast<void>(call.choice("format", formats));
    const TimeFrame frame = call.frame().value_or(1);
    OpenStore opened(call.storePath(), Store::Access::read);
    TransactionContainer container;
    container.fetchTransactions(frame, opened.context);
    for (const TransactionPresentation& row : container.transactions())
        print(QStringLiteral("%1  %2  %3\n")
                  .arg(withDirection(row.isPositive, currencyText(row.amount)), 14)
                  .arg(row.emoji.value_or(QString()), row.title.value_or(QString())));
    return ExitStatus::done;
}

} // namespace

Command listCommand() {
    return {
        .name = QStringLiteral("list"),
        .summary = QStringLiteral("Print the transactions of a time frame, the largest first."),
        .options = {frameOption(QStringLiteral("The time frame: the current month, three months "
                                               "or twelve.")),
                    formatOption(formats)},
        .operand = {},
        .run = run};
}

} // namespace kovamo
