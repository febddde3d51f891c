#pragma once

#include "platform/objectstore/LiveFetch.h"
#include "search/SearchIndex.h"

#include <QtQml/qqmlregistration.h>
#include <optional>

namespace kovamo {

/// The rows of a list of all transactions and the search on it: all rows while it is closed, while
/// it is open those that the query finds, in the list's order. What they are found by is gathered
/// from its opening on, in small steps of the main queue, and is given up when it closes. (One
/// model for both: when a ListView that reuses its rows changes its model, Qt 6.4 shows rows of the
/// former one.)
class TransactionSearch : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the screen of all transactions")
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    Q_PROPERTY(QString summary READ summary NOTIFY summaryChanged)

  public:
    /// Of a row's TransactionLine.
    static constexpr int LineRole = Qt::UserRole;

    /// Requires: `context` and `all`, the list of all transactions in it, outlive the search.
    TransactionSearch(ManagedObjectContext& context, const LiveFetch& all);

    [[nodiscard]] bool isOpen() const { return m_isOpen; }
    Q_INVOKABLE void open();
    /// Forgets the query, too.
    Q_INVOKABLE void close();

    [[nodiscard]] QString query() const { return m_query; }
    /// Blanks alone find everything.
    /// Requires: it is open.
    void setQuery(const QString& query);

    /// How many were found, and their balance: "12 found, - $480"; empty without a query.
    [[nodiscard]] QString summary() const { return m_summary; }

    /// The record at `row`. Requires: 0 ≤ `row` < rowCount().
    [[nodiscard]] ObjectID objectID(int row) const {
        return shown().at(static_cast<std::size_t>(row));
    }

    /// The row of a record; -1 for none.
    [[nodiscard]] int rowOf(ObjectID id) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  Q_SIGNALS:
    void isOpenChanged();
    void queryChanged();
    void summaryChanged();

  private:
    [[nodiscard]] const std::vector<ObjectID>& shown() const;
    void passOn();
    void follow(const ObjectChanges& changes);
    void beginIndex();
    void continueIndex();
    void continueLater();
    void indexRecords(std::size_t most);
    void find();
    void show(std::optional<std::vector<ObjectID>> found);
    void setSummary(const QString& summary);

    ManagedObjectContext& m_context;
    const LiveFetch& m_all;
    bool m_isOpen = false;
    QString m_query;
    QString m_summary;
    /// What the query found; nothing while all rows are shown.
    std::optional<std::vector<ObjectID>> m_found;
    /// While it is open.
    std::optional<SearchIndex> m_index;
    bool m_isIndexed = false;
    ObjectID m_lastIndexed = 0;
    // Which of the indexes a step of the main queue is for.
    int m_indexNumber = 0;
};

} // namespace kovamo
