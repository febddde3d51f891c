#include "Call.h"
#include "Commands.h"
#include "OpenStore.h"
#include "Output.h"
#include "exchange/records/ExchangeFormat.h"
#include "exchange/records/Iso8601.h"
#include "exchange/records/RecordWriter.h"
#include "ledger/TransactionContainer.h"
#include "platform/foundation/Formatters.h"

#include <algorithm>

namespace kovamo {

namespace {

const QStringList formats{QStringLiteral("text"), QStringLiteral("csv"), QStringLiteral("json")};

/// A transaction as a line of a table.
struct Line {
    QString day;
    QString amount;
    QString words;
};

QString dayOf(const std::optional<Instant>& instant, ZoneOffset& zone) {
    if (!instant)
        return {};
    std::string text;
    appendIso8601(text, *instant, zone);
    return QString::fromStdString(text.substr(0, text.find('T')));
}

QString wordsOf(const TransactionPresentation& row) {
    const QString words =
        inOneLine(row.emoji.value_or(QString()) + u' ' + row.title.value_or(QString()));
    return row.isRecurring == true ? words + u" (" + row.recurringType.value_or(QString()) + u')'
                                   : words;
}

void printTable(const QList<SharedPresentation>& rows) {
    ZoneOffset zone;
    std::vector<Line> lines;
    qsizetype dayWidth = 0, amountWidth = 0;
    for (const TransactionPresentation& row : rows) {
        lines.push_back({dayOf(row.startDate, zone),
                         withDirection(row.isPositive, currencyText(row.amount)), wordsOf(row)});
        dayWidth = std::max(dayWidth, lines.back().day.size());
        amountWidth = std::max(amountWidth, lines.back().amount.size());
    }
    for (const Line& line : lines)
        print(line.day.leftJustified(dayWidth) + u"  " + line.amount.rightJustified(amountWidth) +
              u"  " + line.words + u'\n');
}

void printRecords(const QList<SharedPresentation>& rows, ExchangeFormat format) {
    OutputFile output({});
    RecordWriter writer(output.device(), format);
    for (const TransactionPresentation& row : rows)
        writer.write(valuesOf(row));
    if (!writer.flush())
        output.fail();
    output.commit();
}

ExitStatus run(const Call& call) {
    const QString format = call.choice("format", formats);
    const TimeFrame frame = call.frame().value_or(1);
    OpenStore opened(call.storePath(), Store::Access::read);
    TransactionContainer container;
    container.fetchTransactions(frame, opened.context);
    if (const auto records = formatNamed(format))
        printRecords(container.transactions(), *records);
    else
        printTable(container.transactions());
    return ExitStatus::done;
}

} // namespace

Command listCommand() {
    return {.name = QStringLiteral("list"),
            .summary = QStringLiteral("Print the transactions of a time frame, the largest first."),
            .options = {frameOption(), formatOption(formats)},
            .operand = {},
            .run = run};
}

} // namespace kovamo
