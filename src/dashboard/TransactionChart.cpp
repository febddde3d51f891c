#include "TransactionChart.h"

#include "Composition.h"
#include "charts/Chart.h"
#include "charts/ColumnChartStyle.h"
#include "charts/ColumnLayout.h"
#include "editing/TransactionLine.h"
#include "model/Transaction.h"
#include "platform/foundation/Formatters.h"
#include "platform/foundation/RadixSort.h"
#include "platform/foundation/ShownText.h"
#include "platform/views/ShapeViews.h"

#include <algorithm>
#include <cmath>

namespace kovamo {

namespace {

constexpr qsizetype minimumColumns = 15;
constexpr double columnSpacing = 2;
constexpr double columnsHeight = 200;
constexpr double padding = 20;
constexpr double cornerRadius = 10;

/// The largest amount. Requires a transaction.
std::int32_t largestAmount(const QList<SharedPresentation>& transactions) {
    return (*std::ranges::max_element(transactions, {}, &TransactionPresentation::amount))->amount;
}

/// "1 earning", "2 earnings".
QString counted(std::int64_t count, const char* what) {
    return numberText(count) + u' ' + QLatin1String(what) + QLatin1String(count == 1 ? "" : "s");
}

AnyView layer(const QList<double>& data, SystemColor top) {
    const LinearGradient gradient{{{top}, {SystemColor::yellow}}};
    const ColumnChartStyle style{FilledShape{Capsule{}, gradient}, columnSpacing};
    return ClippedView{
        PaddedView{chartStyle(Chart(data), style), QMarginsF(padding, padding, padding, padding)},
        RoundedRectangle{cornerRadius, true}};
}

} // namespace

TransactionChart::TransactionChart(ManagedObjectContext& context, TimeFrame timeFrame)
    : viewContext(&context), selectedTimeFrame(timeFrame) {
    const Period period = periodBounds(timeFrame);
    startDate = period.start;
    endDate = period.end;
    const DateFormatter year{QStringLiteral("y")};
    if (year.string(startDate) != year.string(endDate))
        stackDateFormat.dateFormat = QStringLiteral("MM/dd/yy");
    gatherTransactions(timeFrame, context, transactions);
    radixSortInPlace(transactions, [](const auto& transaction) {
        const Instant start = required(transaction->id, transaction->startDate, "startDate");
        return sortKey(start.time_since_epoch().count());
    });
    scaleAmounts();
}

void TransactionChart::scaleAmounts() {
    const auto columns = std::max(minimumColumns, transactions.size());
    positiveChartData.fill(0, columns);
    negativeChartData.fill(0, columns);
    if (transactions.isEmpty())
        return;
    const double maxAmount = largestAmount(transactions);
    for (qsizetype i = 0; i < transactions.size(); ++i) {
        const TransactionPresentation& transaction = std::as_const(transactions)[i];
        (transaction.isPositive ? positiveChartData : negativeChartData)[i] =
            transaction.amount / maxAmount;
    }
}

QString TransactionChart::title() const {
    const NamedTimeFrame* frame = named(selectedTimeFrame);
    return frame ? QString::fromLatin1(frame->title) : QString();
}

QString TransactionChart::dates() const {
    return stackDateFormat.string(startDate) + u" - " + stackDateFormat.string(endDate);
}

QString TransactionChart::range() const {
    return u"**" + dates() + u"**";
}

QString TransactionChart::sentence() const {
    if (!isShown())
        return {};
    const auto earnings =
        std::ranges::count(transactions, true, &TransactionPresentation::isPositive);
    return QStringLiteral("%1, %2: %3, %4, largest amount %5")
        .arg(title(), dates(), counted(earnings, "earning"),
             counted(transactions.size() - earnings, "spending"),
             formattedAmount(largestAmount(transactions)));
}

AnyView TransactionChart::view() const {
    return ZStack{
        {layer(negativeChartData, SystemColor::red), layer(positiveChartData, SystemColor::green)}};
}

double TransactionChart::height() {
    return columnsHeight + 2 * padding;
}

int TransactionChart::columnAt(double x, double width) const {
    const auto columns = static_cast<std::size_t>(positiveChartData.size());
    const auto column = kovamo::columnAt(x - padding, columns, columnSpacing, width - 2 * padding);
    return column && *column < static_cast<std::size_t>(transactions.size())
               ? static_cast<int>(*column)
               : -1;
}

double TransactionChart::columnCenter(int column, double width) const {
    const auto [columnWidth, gap] = columnMetrics(
        static_cast<std::size_t>(positiveChartData.size()), columnSpacing, width - 2 * padding);
    return padding + column * (columnWidth + gap) + columnWidth / 2;
}

QString TransactionChart::columnText(int column) const {
    if (column < 0 || column >= count())
        return {};
    const TransactionPresentation& transaction = transactions[column];
    const QString text =
        QStringLiteral("%1\n%2\n%3")
            .arg(shownText(required(transaction.id, transaction.title, "title")),
                 signedAmount(transaction.isPositive, transaction.amount),
                 localizedDateText(required(transaction.id, transaction.startDate, "startDate"),
                                   QStringLiteral("yMMMd")));
    return transaction.isRecurring == true
               ? text + u'\n' + composition(transaction, monthSlots(selectedTimeFrame))
               : text;
}

} // namespace kovamo
