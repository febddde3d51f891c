// Random ledgers through the real store, held against the plainest way to say what is shown.

#include "dashboard/Banner.h"
#include "dashboard/FilteredList.h"
#include "dashboard/TransactionChart.h"
#include "editing/TransactionsView.h"
#include "support/Book.h"
#include "support/WallClock.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace kovamo {
namespace {

using Rows = std::vector<TransactionPresentation>;

class RandomLedger {
  public:
    RandomLedger(unsigned seed, const char* zone)
        : m_random(seed), m_world("2024-05-15", zone), m_wall(zone), m_book({}) {
        using namespace std::chrono;
        m_now = WallClock::at({pick(1975, 2035), pick(1, 12)}, pick(0, 27 * 24)) +
                milliseconds(pick(0, 999));
        Clock::setSource([this] { return m_now; });
    }

    void change() {
        auto& context = m_book.context;
        const auto records = context.fetch<Transaction>(Transaction::fetchRequest());
        for (Transaction* record : records)
            if (const int fate = pick(0, 5); fate == 0)
                context.deleteObject(*record);
            else if (fate == 1)
                fill(*record);
        for (int i = pick(0, 30); i > 0; --i)
            fill(context.insert<Transaction>());
    }

    void compare() {
        compare(m_book.context);
        m_book.context.save();
        PersistentContainer again(QStringLiteral("Kovamo"), Transaction::entity());
        again.loadPersistentStores([](const StoreError* error) { ASSERT_EQ(error, nullptr); });
        compare(again.viewContext());
    }

  private:
    int pick(int least, int most) { return std::uniform_int_distribution(least, most)(m_random); }

    // Half of them within a millisecond of a bound of some month.
    Instant moment() {
        const auto [year, month] = WallClock::month(m_now);
        const WallClock::Month some{year + pick(-1, 1), pick(1, 12)};
        if (pick(0, 1) == 0)
            return WallClock::at(some, -pick(0, 1)) + std::chrono::milliseconds(pick(-1, 1));
        return WallClock::at(some, pick(0, 30 * 24));
    }

    void fill(Transaction& record) {
        const char* const types[] = {"monthly", "yearly", "Monthly", "weekly"};
        record.setId(QUuid::createUuid());
        record.setAmount(pick(0, 1) == 0 ? pick(0, 3) : pick(0, 100'000'000));
        record.setIsPositive(pick(0, 1) == 0);
        record.setIsRecurring(pick(0, 1) == 0);
        record.setRecurringType(QLatin1String(types[pick(0, 10) < 5 ? 0 : pick(0, 3)]));
        record.setStartDate(moment());
        record.setEndDate(moment());
    }

    Rows gathered(const std::vector<Transaction*>& records, TimeFrame timeFrame) const {
        const auto slots = WallClock::slots(m_now, timeFrame);
        const Instant start = WallClock::at(WallClock::month(m_now), 0);
        const Instant end = timeFrame == 0 ? m_now : slots.back().end;
        Rows rows;
        for (const Transaction* record : records)
            if (!record->isRecurring() && *record->startDate() >= start &&
                *record->startDate() < end)
                rows.emplace_back(*record);
        for (const Transaction* record : records) {
            const Instant first = *record->startDate(), last = *record->endDate();
            const bool isMonthly = record->recurringType() == u"monthly";
            int times = 0;
            for (const auto& slot : slots)
                if (isMonthly)
                    times += first <= slot.end && (last >= slot.start || first >= slot.start);
                else if (record->recurringType() == u"yearly" && last > slot.start)
                    times |= WallClock::month(first).month == WallClock::month(slot.start).month;
            if (record->isRecurring() && times > 0)
                rows.emplace_back(*record).amount *= times;
        }
        return rows;
    }

    void compare(ManagedObjectContext& context) const {
        auto records = context.fetch<Transaction>(Transaction::fetchRequest());
        std::ranges::sort(records, {}, &ManagedObject::objectID);
        for (const TimeFrame timeFrame : {0, 1, 2, 3})
            compare(gathered(records, timeFrame), timeFrame, context);
        const TransactionsView screen(context);
        std::ranges::stable_sort(records, std::ranges::greater(), &Transaction::amount);
        ASSERT_EQ(screen.rowCount(), std::ssize(records));
        for (int row = 0; row < screen.rowCount(); ++row)
            ASSERT_EQ(screen.object(row).objectID(),
                      records[static_cast<std::size_t>(row)]->objectID());
    }

    static void compare(Rows rows, TimeFrame timeFrame, ManagedObjectContext& context) {
        Rows listed = rows;
        std::ranges::stable_sort(listed, std::ranges::greater(), &TransactionPresentation::amount);
        TransactionContainer container;
        container.fetchTransactions(timeFrame, context);
        ASSERT_EQ(container.transactions(), listed);

        std::int64_t sum = 0;
        std::int32_t largest = 0;
        for (const auto& row : rows) {
            sum += row.isPositive ? row.amount : -std::int64_t{row.amount};
            largest = std::max(largest, row.amount);
        }
        const Banner banner(context, timeFrame);
        EXPECT_EQ(banner.kovamo, std::abs(sum));
        EXPECT_EQ(banner.currentGradient, sum > 0   ? banner.greenGardient
                                          : sum < 0 ? banner.redGradient
                                                    : banner.blueGradient);

        std::ranges::stable_sort(rows, {}, &TransactionPresentation::startDate);
        const TransactionChart chart(context, timeFrame);
        ASSERT_EQ(chart.transactions, QList(rows.begin(), rows.end()));
        for (std::size_t i = 0; i < std::max(rows.size(), std::size_t{15}); ++i) {
            const auto column = static_cast<qsizetype>(i);
            const bool isEarning = i < rows.size() && rows[i].isPositive;
            const double height = i < rows.size() ? rows[i].amount / double(largest) : 0;
            const double shown =
                (isEarning ? chart.positiveChartData : chart.negativeChartData).at(column);
            EXPECT_TRUE(shown == height || (std::isnan(shown) && std::isnan(height)));
            EXPECT_EQ((isEarning ? chart.negativeChartData : chart.positiveChartData).at(column),
                      0);
        }
    }

    std::mt19937 m_random;
    World m_world;
    WallClock m_wall;
    Book m_book;
    Instant m_now;
};

TEST(Ledger, ShowsWhatThePlainestCountOfItGives) {
    for (unsigned seed = 0; seed < 30; ++seed) {
        const char* const zones[] = {"Europe/Berlin",       "Asia/Kolkata", "America/Sao_Paulo",
                                     "Australia/Lord_Howe", "Africa/Cairo", "UTC"};
        RandomLedger ledger(seed, zones[seed % 6]);
        for (int step = 0; step < 2; ++step) {
            SCOPED_TRACE(testing::Message() << "ledger " << seed << ", step " << step);
            ledger.change();
            ASSERT_NO_FATAL_FAILURE(ledger.compare());
        }
    }
}

} // namespace
} // namespace kovamo
