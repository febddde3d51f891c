#pragma once

#include <QString>
#include <cstdint>

namespace kovamo {

/// What a benchmark's store holds.
struct Ledger {
    int stored = 0;
    /// How many of these lie in the twelve-month frame, those that recur aside.
    int inFrame = 0;
    int recurring = 50;
};

/// Fills the empty store at `path` with made-up records in no order of date or amount, as many of
/// them in the twelve-month frame as `ledger` says, the others in the years before.
void fill(const QString& path, const Ledger& ledger);

/// The same two queries as a gathering of the twelve-month frame, their amounts added up, as plain
/// SQLite does it.
class PlainLoop {
  public:
    explicit PlainLoop(const QString& path);
    ~PlainLoop();
    Q_DISABLE_COPY_MOVE(PlainLoop)

    [[nodiscard]] std::int64_t sum();

    /// How many records there are by descending amount, each read as its identity.
    [[nodiscard]] std::int64_t countByAmount();

    /// Inserts one record, as durably as the app does.
    void insert();

  private:
    struct Connection;
    Connection* m_connection;
};

} // namespace kovamo
