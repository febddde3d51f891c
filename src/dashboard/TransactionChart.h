#pragma once

#include "ledger/TransactionContainer.h"
#include "platform/foundation/Formatters.h"
#include "platform/views/AnyView.h"

#include <QList>
#include <QtQml/qqmlregistration.h>

namespace kovamo {

/// The chart of a time frame: a column for each of its transactions by start date, earnings green
/// and spendings red, as high as its amount is against the largest. With no transaction in the
/// frame there is no chart.
class TransactionChart {
    Q_GADGET
    QML_VALUE_TYPE(transactionChart)
    Q_PROPERTY(bool isShown READ isShown)
    Q_PROPERTY(int count READ count)
    Q_PROPERTY(QString title READ title)
    Q_PROPERTY(QString range READ range)
    Q_PROPERTY(QString sentence READ sentence)
    Q_PROPERTY(kovamo::AnyView view READ view)
    Q_PROPERTY(double height READ height CONSTANT)

  public:
    TransactionChart() = default;

    /// Gathers the frame's transactions and scales their amounts. A transaction without a start
    /// date is a fatal error. Requires: `viewContext` outlives the value.
    TransactionChart(ManagedObjectContext& viewContext, TimeFrame selectedTimeFrame);

    ManagedObjectContext* viewContext = nullptr;
    /// The period's transactions by start date.
    QList<SharedPresentation> transactions;
    /// For each column the amount as a fraction of the largest where it is an earning, else 0; at
    /// least 15 columns, the empty ones last.
    QList<double> positiveChartData;
    /// The same for spendings.
    QList<double> negativeChartData;
    TimeFrame selectedTimeFrame = 1;
    /// Writes the range's dates, with the year where the period spans two.
    DateFormatter stackDateFormat{QStringLiteral("MM/dd")};
    Instant startDate;
    /// The first moment after the period.
    Instant endDate;

    [[nodiscard]] bool isShown() const { return !transactions.isEmpty(); }
    [[nodiscard]] int count() const { return static_cast<int>(transactions.size()); }

    /// The name of the time frame; empty for an unnamed one.
    [[nodiscard]] QString title() const;

    /// The period's dates in bold markup.
    [[nodiscard]] QString range() const;

    /// The chart in words: frame, range, how many earnings and spendings, the largest amount.
    [[nodiscard]] QString sentence() const;

    /// The two layers of columns in the view's rectangle, which is height() points high.
    [[nodiscard]] AnyView view() const;
    [[nodiscard]] static double height();

    /// The transaction whose column is nearest to `x` points in a view `width` points wide; -1 for
    /// an empty column and beside the chart.
    Q_INVOKABLE [[nodiscard]] int columnAt(double x, double width) const;

    /// Where the middle of a transaction's column is in such a view, in points.
    Q_INVOKABLE [[nodiscard]] double columnCenter(int column, double width) const;

    /// A transaction's title, amount and date, and what the amount of a recurring one is made of.
    Q_INVOKABLE [[nodiscard]] QString columnText(int column) const;

  private:
    void scaleAmounts();
    [[nodiscard]] QString dates() const;
};

} // namespace kovamo
