#include "Ledger.h"

#include "ledger/TimeFrame.h"
#include "platform/foundation/FatalError.h"

#include <QUuid>
#include <random>
#include <sqlite3.h>

namespace kovamo {

namespace {

constexpr TimeFrame twelveMonths = 3;
constexpr std::int64_t millisecondsBefore = 70LL * 365 * 24 * 3600 * 1000;

const char* const insertion =
    "INSERT INTO \"Transaction\" (amount, emoji, endDate, id, isPositive, isRecurring, "
    "recurringType, startDate, timestamp, title) VALUES (?,?,?,?,?,?,?,?,?,?)";

std::int64_t milliseconds(Instant instant) {
    return instant.time_since_epoch().count();
}

class Statement {
  public:
    Statement(sqlite3* database, const char* sql) {
        if (sqlite3_prepare_v2(database, sql, -1, &m_statement, nullptr) != SQLITE_OK)
            fatalError(QString::fromUtf8(sqlite3_errmsg(database)));
    }
    ~Statement() { sqlite3_finalize(m_statement); }
    Q_DISABLE_COPY_MOVE(Statement)

    operator sqlite3_stmt*() const { return m_statement; }

  private:
    sqlite3_stmt* m_statement = nullptr;
};

void run(sqlite3* database, const char* sql) {
    if (sqlite3_exec(database, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        fatalError(QString::fromUtf8(sqlite3_errmsg(database)));
}

sqlite3* opened(const QString& path) {
    sqlite3* database = nullptr;
    if (sqlite3_open_v2(path.toUtf8().constData(), &database, SQLITE_OPEN_READWRITE, nullptr) !=
        SQLITE_OK)
        fatalError(QString::fromUtf8(sqlite3_errmsg(database)));
    return database;
}

void insertRow(sqlite3_stmt* statement, int number, int amount, bool recurs, std::int64_t start,
               std::int64_t end) {
    const std::string id = QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString();
    const std::string title = "Transaction " + std::to_string(number);
    sqlite3_bind_int(statement, 1, amount);
    sqlite3_bind_text(statement, 2, "🛒", -1, SQLITE_STATIC);
    sqlite3_bind_int64(statement, 3, end);
    sqlite3_bind_text(statement, 4, id.c_str(), -1, SQLITE_STATIC);
    sqlite3_bind_int(statement, 5, number % 5 == 0);
    sqlite3_bind_int(statement, 6, recurs);
    sqlite3_bind_text(statement, 7, number % 2 ? "monthly" : "yearly", -1, SQLITE_STATIC);
    sqlite3_bind_int64(statement, 8, start);
    sqlite3_bind_int64(statement, 9, start);
    sqlite3_bind_text(statement, 10, title.c_str(), -1, SQLITE_STATIC);
    if (sqlite3_step(statement) != SQLITE_DONE)
        fatalError(QStringLiteral("A record cannot be inserted"));
    sqlite3_reset(statement);
}

} // namespace

void fill(const QString& path, const Ledger& ledger) {
    sqlite3* database = opened(path);
    run(database, "PRAGMA synchronous = OFF; PRAGMA cache_size = -600000; BEGIN");
    {
        const Statement statement(database, insertion);
        const auto [start, end] = periodBounds(twelveMonths);
        std::mt19937 generator(1);
        std::uniform_int_distribution<std::int64_t> within(milliseconds(start),
                                                           milliseconds(end) - 1);
        std::uniform_int_distribution<std::int64_t> before(milliseconds(start) - millisecondsBefore,
                                                           milliseconds(start) - 1);
        std::uniform_int_distribution<int> amount(1, 5000);
        for (int left = ledger.stored, inFrame = ledger.inFrame, recurring = ledger.recurring;
             left > 0; --left) {
            const int draw = std::uniform_int_distribution(1, left)(generator);
            const bool recurs = draw <= recurring;
            const bool falls = !recurs && draw <= recurring + inFrame;
            recurring -= recurs;
            inFrame -= falls;
            insertRow(statement, left, amount(generator), recurs,
                      falls ? within(generator) : before(generator),
                      milliseconds(end) + millisecondsBefore);
        }
    }
    run(database, "COMMIT; PRAGMA wal_checkpoint(TRUNCATE)");
    sqlite3_close(database);
}

struct PlainLoop::Connection {
    sqlite3* database;
    Statement oneOff{database, "SELECT amount FROM \"Transaction\" WHERE startDate >= ? AND "
                               "startDate < ? AND isRecurring = 0"};
    Statement recurring{database, "SELECT amount FROM \"Transaction\" WHERE isRecurring = 1"};
    Statement byAmount{database, "SELECT pk FROM \"Transaction\" ORDER BY amount DESC, pk"};
    Statement inserting{database, insertion};
};

PlainLoop::PlainLoop(const QString& path) : m_connection(new Connection{opened(path)}) {
    run(m_connection->database, "PRAGMA synchronous = FULL");
}

PlainLoop::~PlainLoop() {
    sqlite3* database = m_connection->database;
    delete m_connection;
    sqlite3_close(database);
}

std::int64_t PlainLoop::sum() {
    const auto [start, end] = periodBounds(twelveMonths);
    sqlite3_bind_int64(m_connection->oneOff, 1, milliseconds(start));
    sqlite3_bind_int64(m_connection->oneOff, 2, milliseconds(end));
    std::int64_t sum = 0;
    for (sqlite3_stmt* statement : {+m_connection->oneOff, +m_connection->recurring}) {
        while (sqlite3_step(statement) == SQLITE_ROW)
            sum += sqlite3_column_int(statement, 0);
        sqlite3_reset(statement);
    }
    return sum;
}

std::int64_t PlainLoop::countByAmount() {
    std::int64_t count = 0;
    while (sqlite3_step(m_connection->byAmount) == SQLITE_ROW)
        count += sqlite3_column_int64(m_connection->byAmount, 0) != 0;
    sqlite3_reset(m_connection->byAmount);
    return count;
}

void PlainLoop::insert() {
    insertRow(m_connection->inserting, 1, 1, false, 0, 0);
}

} // namespace kovamo
