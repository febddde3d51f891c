#pragma once

#include "ZoneOffset.h"
#include "platform/objectstore/Value.h"

#include <array>
#include <span>
#include <string>
#include <vector>

namespace kovamo {

/// What is wrong with one record of a file.
struct Fault {
    QString text;
};

/// One text of a record; an absent one is not an empty one.
struct Cell {
    bool isPresent = false;
    std::string text;

    void set(std::string_view newText) {
        isPresent = true;
        text = newText;
    }
    void clear() {
        isPresent = false;
        text.clear();
    }
};

/// The columns of a record in the app's own files, in their order. `recurs` is absent for a
/// one-off; where it is "other", `recurringType` has the type that is neither "monthly" nor
/// "yearly". The type and the end that a one-off was stored with are in `recurringType` and
/// `endDate`.
enum class Column : std::size_t {
    id,
    date,
    title,
    emoji,
    amount,
    kind,
    recurs,
    until,
    timestamp,
    recurringType,
    endDate,
};
inline constexpr std::array<std::string_view, 11> columnNames{
    "id",     "date",  "title",     "emoji",         "amount", "kind",
    "recurs", "until", "timestamp", "recurringType", "endDate"};

class Row {
  public:
    [[nodiscard]] Cell& operator[](Column column) { return m_cells[std::size_t(column)]; }
    [[nodiscard]] const Cell& operator[](Column column) const {
        return m_cells[std::size_t(column)];
    }
    [[nodiscard]] std::span<const Cell> cells() const { return m_cells; }
    void clear() {
        for (Cell& cell : m_cells)
            cell.clear();
    }

  private:
    std::array<Cell, columnNames.size()> m_cells;
};

/// Writes the values of a transaction into `row`.
void fillRow(Row& row, std::span<const Value> values, ZoneOffset& zone);

/// Lets a one-off end where it begins, for a file that says nothing of ends.
void endWhereItBegins(Row& row);

/// Reads the values of a transaction from `row`. Throws a Fault.
void readRow(const Row& row, std::vector<Value>& values, ZoneOffset& zone);

} // namespace kovamo
