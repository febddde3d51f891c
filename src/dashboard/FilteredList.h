#pragma once

#include "ledger/TransactionContainer.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace kovamo {

/// The rows under the chart: one for each transaction that a container publishes, in its order.
/// What it publishes later shows in the event loop's next turn.
class FilteredList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main screen")

  public:
    /// Of a row's TransactionLine, and whether a divider follows it.
    enum Role { LineRole = Qt::UserRole, HasDividerRole };

    /// Shows `container`, loaded, in place of the one before: rows that both have stay.
    void setTransactionContainer(std::unique_ptr<TransactionContainer> container);

    /// The transaction at `row`. Requires: 0 ≤ `row` < rowCount().
    [[nodiscard]] const TransactionPresentation& transaction(int row) const {
        return m_rows.at(row);
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  private:
    void showLater();
    void show();

    std::unique_ptr<TransactionContainer> m_transactionContainer;
    // What the views know of; the container may be ahead.
    QList<SharedPresentation> m_rows;
    bool m_willShow = false;
};

} // namespace kovamo
