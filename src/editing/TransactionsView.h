#pragma once

#include "AddTransactionView.h"
#include "DeletedTransactions.h"
#include "ExchangeView.h"
#include "TransactionSearch.h"
#include "platform/objectstore/LiveFetch.h"

#include <QtQml/qqmlregistration.h>
#include <memory>
#include <vector>

namespace kovamo {

/// The screen of all stored transactions, largest amount first: a list that follows the store.
class TransactionsView : public LiveFetch {
    Q_OBJECT
    QML_NAMED_ELEMENT(TransactionsState)
    QML_UNCREATABLE("Made by the main screen")
    Q_PROPERTY(QString navigationTitle READ navigationTitle CONSTANT)
    /// The form of the transaction opened last.
    Q_PROPERTY(kovamo::AddTransactionView* form READ form NOTIFY formChanged)
    Q_PROPERTY(kovamo::ExchangeView* exchange READ exchange CONSTANT)
    /// The rows that are shown: all, or what is searched for.
    Q_PROPERTY(kovamo::TransactionSearch* search READ search CONSTANT)
    Q_PROPERTY(kovamo::DeletedTransactions* deleted READ deleted CONSTANT)

  public:
    /// Of a row's TransactionLine.
    static constexpr int LineRole = TransactionSearch::LineRole;

    /// Requires: `viewContext` outlives the screen.
    explicit TransactionsView(ManagedObjectContext& viewContext);

    [[nodiscard]] static QString navigationTitle() { return tr("Transactions"); }

    [[nodiscard]] AddTransactionView* form() const {
        return m_forms.empty() ? nullptr : m_forms.back().get();
    }

    /// How the records go out and come in.
    [[nodiscard]] ExchangeView* exchange() { return &m_exchange; }

    [[nodiscard]] TransactionSearch* search() { return &m_search; }
    [[nodiscard]] DeletedTransactions* deleted() { return &m_deleted; }

    /// Makes the form for the transaction at `row` of search(); returns whether there is one.
    Q_INVOKABLE bool edit(int row);

    /// Deletes the transactions at `rows` of search() one after another, each saved at once. Rows
    /// are ascending; each is a row of the list as it is after the deletions before it. A failed
    /// save is ignored.
    Q_INVOKABLE void remove(const QList<int>& rows);

    /// Takes the last deletion back, saved at once. Returns the row of search() that shows
    /// the transaction again; -1 for none.
    Q_INVOKABLE int takeBack();

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  Q_SIGNALS:
    void formChanged();
    /// The form has saved, and its page is to go.
    void formDismissed();

  private:
    [[nodiscard]] Transaction& transaction(int row) const;

    ManagedObjectContext& m_viewContext;
    ExchangeView m_exchange;
    TransactionSearch m_search;
    DeletedTransactions m_deleted;
    // The last is the one on top. The pages of those before may still be sliding off the screen.
    std::vector<std::unique_ptr<AddTransactionView>> m_forms;
};

} // namespace kovamo
