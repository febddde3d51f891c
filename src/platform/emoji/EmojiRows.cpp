#include "EmojiRows.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace kovamo {

EmojiRows::EmojiRows(QObject* parent) : QAbstractListModel(parent) {
    layOut();
}

void EmojiRows::setColumns(int columns) {
    if (std::exchange(m_columns, columns) == columns)
        return;
    const int place = placeOf(m_cursorRow) + m_cursorColumn;
    layOut();
    const int row = rowAt(place);
    setCursor(row, place - placeOf(row));
    Q_EMIT columnsChanged();
}

void EmojiRows::setQuery(const QString& query) {
    if (std::exchange(m_query, query) == query)
        return;
    layOut();
    Q_EMIT queryChanged();
}

void EmojiRows::layOut() {
    beginResetModel();
    m_rows.clear();
    if (m_query.trimmed().isEmpty())
        for (int category = 0; category < emojiCategories().size(); ++category)
            appendRows(category, emojiCategories().at(category).emoji);
    else
        appendRows(-1, foundEmoji(m_query));
    endResetModel();
    setCursor(0, 0);
}

void EmojiRows::appendRows(int category, const QList<Emoji>& emoji) {
    for (qsizetype first = 0; first < emoji.size(); first += m_columns)
        m_rows.append({category, first == 0, emoji.mid(first, m_columns)});
}

QString EmojiRows::cursorText() const {
    const Emoji* emoji = atCursor();
    return emoji ? emoji->text : QString();
}

QString EmojiRows::cursorName() const {
    const Emoji* emoji = atCursor();
    return emoji ? emoji->name : QString();
}

const Emoji* EmojiRows::atCursor() const {
    return m_rows.isEmpty() ? nullptr : &m_rows.at(m_cursorRow).emoji.at(m_cursorColumn);
}

int EmojiRows::rowOf(int category) const {
    const auto row = std::find_if(m_rows.begin(), m_rows.end(),
                                  [category](const Row& r) { return r.category == category; });
    return int(row - m_rows.begin());
}

int EmojiRows::categoryOf(int row) const {
    return row >= 0 && row < m_rows.size() ? m_rows.at(row).category : -1;
}

int EmojiRows::placeOf(int row) const {
    const auto end = m_rows.begin() + std::clamp<qsizetype>(row, 0, m_rows.size());
    return std::accumulate(m_rows.begin(), end, 0,
                           [](int before, const Row& r) { return before + int(r.emoji.size()); });
}

int EmojiRows::rowAt(int place) const {
    int row = 0;
    while (row + 1 < m_rows.size() && place >= m_rows.at(row).emoji.size())
        place -= int(m_rows.at(row++).emoji.size());
    return row;
}

void EmojiRows::moveCursor(int by) {
    const int column = m_cursorColumn + by;
    if (column >= 0 && !m_rows.isEmpty() && column < m_rows.at(m_cursorRow).emoji.size())
        setCursor(m_cursorRow, column);
    else if (by > 0 && m_cursorRow + 1 < m_rows.size())
        setCursor(m_cursorRow + 1, 0);
    else if (by < 0 && m_cursorRow > 0)
        setCursor(m_cursorRow - 1, m_columns);
}

bool EmojiRows::moveCursorRow(int by) {
    const int row = m_cursorRow + by;
    if (row < 0 || row >= m_rows.size())
        return false;
    setCursor(row, m_cursorColumn);
    return true;
}

void EmojiRows::setCursorRow(int row) {
    setCursor(row, 0);
}

void EmojiRows::setCursor(int row, int column) {
    m_cursorRow = row;
    m_cursorColumn = m_rows.isEmpty() ? 0 : std::min(column, int(m_rows.at(row).emoji.size()) - 1);
    Q_EMIT cursorChanged();
}

int EmojiRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant EmojiRows::data(const QModelIndex& index, int role) const {
    const Row& row = m_rows.at(index.row());
    if (role == Heading)
        return row.category >= 0 && row.isFirst ? emojiCategories().at(row.category).title
                                                : QString();
    QStringList texts;
    for (const Emoji& emoji : row.emoji)
        texts.append(role == Texts ? emoji.text : emoji.name);
    return texts;
}

QHash<int, QByteArray> EmojiRows::roleNames() const {
    return {{Heading, "heading"}, {Texts, "texts"}, {Names, "names"}};
}

} // namespace kovamo
