#pragma once

#include "EmojiCatalogue.h"

#include <QAbstractListModel>

namespace kovamo {

/// The emoji to choose from in rows of `columns`, each category starting a row of its own, or
/// those found by `query`. The cursor is the emoji that the keyboard moves.
class EmojiRows : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int columns READ columns WRITE setColumns NOTIFY columnsChanged)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    Q_PROPERTY(QList<kovamo::EmojiCategory> categories READ categories CONSTANT)
    Q_PROPERTY(int cursorRow READ cursorRow NOTIFY cursorChanged)
    Q_PROPERTY(int cursorColumn READ cursorColumn NOTIFY cursorChanged)
    Q_PROPERTY(QString cursorText READ cursorText NOTIFY cursorChanged)
    Q_PROPERTY(QString cursorName READ cursorName NOTIFY cursorChanged)

  public:
    enum Role { Heading = Qt::UserRole, Texts, Names };

    explicit EmojiRows(QObject* parent = nullptr);

    [[nodiscard]] int columns() const { return m_columns; }
    /// Requires: a positive number. The cursor stays on its emoji.
    void setColumns(int columns);

    [[nodiscard]] QString query() const { return m_query; }
    /// Blanks alone find everything, by category.
    void setQuery(const QString& query);

    [[nodiscard]] static QList<EmojiCategory> categories() { return emojiCategories(); }

    [[nodiscard]] int cursorRow() const { return m_cursorRow; }
    [[nodiscard]] int cursorColumn() const { return m_cursorColumn; }
    /// The emoji at the cursor and its name; empty where nothing was found.
    [[nodiscard]] QString cursorText() const;
    [[nodiscard]] QString cursorName() const;

    /// The first row of a category. Requires: no query.
    [[nodiscard]] Q_INVOKABLE int rowOf(int category) const;
    /// The category of a row; -1 where there is no such row, or a query.
    [[nodiscard]] Q_INVOKABLE int categoryOf(int row) const;

    /// How many emoji stand before a row, and the row in which an emoji with so many before it is.
    [[nodiscard]] Q_INVOKABLE int placeOf(int row) const;
    [[nodiscard]] Q_INVOKABLE int rowAt(int place) const;

    /// Moves the cursor on or back by emoji, over the ends of the rows.
    Q_INVOKABLE void moveCursor(int by);
    /// Moves the cursor by rows and leaves it in its column where the row is as long; false where
    /// there is no such row.
    Q_INVOKABLE bool moveCursorRow(int by);
    /// Puts the cursor on the first emoji of a row.
    Q_INVOKABLE void setCursorRow(int row);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  Q_SIGNALS:
    void columnsChanged();
    void queryChanged();
    void cursorChanged();

  private:
    struct Row {
        /// -1 for what was searched.
        int category;
        bool isFirst;
        QList<Emoji> emoji;
    };

    void layOut();
    void appendRows(int category, const QList<Emoji>& emoji);
    void setCursor(int row, int column);
    [[nodiscard]] const Emoji* atCursor() const;

    int m_columns = 8;
    QString m_query;
    QList<Row> m_rows;
    int m_cursorRow = 0;
    int m_cursorColumn = 0;
};

} // namespace kovamo
