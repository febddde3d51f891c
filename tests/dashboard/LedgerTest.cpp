// Random ledgers through the real store, held against the plainest way to say what is shown.

#include "dashboard/Banner.h"
#include "dashboard/TransactionChart.h"
#include "editing/TransactionsView.h"
#include "ledger/Recurrence.h"
#include "support/Book.h"
#include "support/WallClock.h"

#include <cmath>
#include <random>

namespace kovamo {
namespace {

using Rows = QList<TransactionPresentation>;

class RandomLedger {
  public:
    RandomLedger(unsigned seed, const char* zone)
        : m_random(seed), m_world("2024-05-15", zone), m_wall(zone) {
        m_now = WallClock::at({pick(1975, 2035), pick(1, 12)}, pick(0, 27 * 24)) +
                std::chrono::milliseconds(pick(0, 999));
        Clock::setSource([this] { return m_now; });
    }

    void change() {
        auto& context = m_book.context;
        for (Transaction* record : m_book.all())
            if (const int fate = pick(0, 5); fate == 0)
                context.deleteObject(*record);
            else if (fate == 1)
                fill(*record);
        for (int i = pick(0, 30); i > 0; --i)
            fill(context.insert<Transaction>());
        compare(context);
        context.save();
        compare(Book().context);
    }

  private:
    int pick(int least, int most) { return std::uniform_int_distribution(least, most)(m_random); }

    // Around this month's time of the year, half of them within a millisecond of a month's bound.
    Instant moment() {
        const auto [year, month] = WallClock::month(m_now);
        const WallClock::Month some{year + pick(-1, 1), month + pick(-2, 3)};
        if (pick(0, 1) == 0)
            return WallClock::at(some, -pick(0, 1)) + std::chrono::milliseconds(pick(-1, 1));
        return WallClock::at(some, pick(0, 30 * 24));
    }

    void fill(Transaction& record) {
        const char* const types[] = {"monthly", "yearly", "Monthly", "weekly"};
        record.setId(QUuid::createUuid());
        record.setAmount(pick(0, 1) == 0 ? pick(0, 3) : pick(0, 178'956'970));
        record.setIsPositive(pick(0, 1) == 0);
        record.setIsRecurring(pick(0, 1) == 0);
        record.setRecurringType(QLatin1String(types[pick(0, 9) < 8 ? pick(0, 1) : pick(2, 3)]));
        record.setStartDate(moment());
        record.setEndDate(moment());
    }

    Rows gathered(const std::vector<Transaction*>& records, TimeFrame timeFrame) const {
        const auto bounds = WallClock::bounds(m_now, timeFrame);
        const Instant start = WallClock::at(WallClock::month(m_now), 0);
        const Instant end = timeFrame == 0 ? m_now : bounds.back();
        Rows rows;
        for (const Transaction* record : records)
            if (!record->isRecurring() && record->startDate() >= start && record->startDate() < end)
                rows.emplace_back(*record);
        for (const Transaction* record : records) {
            const Instant first = *record->startDate(), last = *record->endDate();
            int times = 0;
            for (std::size_t i = 0; i + 1 < bounds.size(); ++i)
                if (record->recurringType() == u"monthly")
                    times += first <= bounds[i + 1] && (last >= bounds[i] || first >= bounds[i]);
                else if (record->recurringType() == u"yearly" && last > bounds[i])
                    times |= WallClock::month(first).month == WallClock::month(bounds[i]).month;
            if (record->isRecurring() && times > 0)
                rows.emplace_back(*record).amount *= times;
        }
        return rows;
    }

    void compare(ManagedObjectContext& context) const {
        auto records = context.fetch<Transaction>(transactions());
        for (const TimeFrame timeFrame : {0, 1, 2, 3})
            compare(gathered(records, timeFrame), timeFrame, context);
        for (const auto& row : gathered(records, 3))
            EXPECT_EQ(row.amount,
                      timesCounted(row, monthSlots(3)) *
                          (*std::ranges::find(records, row.id, &Transaction::id))->amount());
        const TransactionsView screen(context);
        std::ranges::stable_sort(records, std::ranges::greater(), &Transaction::amount);
        ASSERT_EQ(screen.rowCount(), std::ssize(records));
        for (int row = 0; row < screen.rowCount(); ++row)
            ASSERT_EQ(&screen.object(row), records[static_cast<std::size_t>(row)]);
    }

    static Rows copies(const QList<SharedPresentation>& list) { return {list.begin(), list.end()}; }

    static void compare(Rows rows, TimeFrame timeFrame, ManagedObjectContext& context) {
        Rows listed = rows;
        std::ranges::stable_sort(listed, std::ranges::greater(), &TransactionPresentation::amount);
        TransactionContainer container;
        container.fetchTransactions(timeFrame, context);
        ASSERT_EQ(copies(container.transactions()), listed);

        std::int64_t sum = 0;
        for (const auto& row : rows)
            sum += row.isPositive ? row.amount : -std::int64_t{row.amount};
        const Banner banner(context, timeFrame);
        EXPECT_EQ(banner.isShown(), !rows.empty());
        EXPECT_EQ(banner.kovamo, std::abs(sum));
        const std::size_t sign = sum < 0 ? 0 : sum == 0 ? 1 : 2;
        const char* const moods[] = {" negative ", " neutral ", " positive "};
        const char* const signs[] = {"- ", "   0", "+ "};
        EXPECT_EQ(banner.kovamoText, QLatin1String(signs[sign]));
        EXPECT_TRUE(banner.infoText.contains(QLatin1String(moods[sign])));
        const std::array gradients{banner.redGradient, banner.blueGradient, banner.greenGardient};
        EXPECT_EQ(banner.currentGradient, gradients[sign]);

        const double largest = listed.empty() ? 0 : listed.front().amount;
        std::ranges::stable_sort(rows, {}, &TransactionPresentation::startDate);
        const TransactionChart chart(context, timeFrame);
        ASSERT_EQ(copies(chart.transactions), rows);
        rows.resize(std::max(rows.size(), qsizetype{15}));
        for (qsizetype i = 0; i < rows.size(); ++i) {
            const auto& row = rows[i];
            const double height = i < chart.count() ? row.amount / largest : 0;
            const double up = chart.positiveChartData.at(i), down = chart.negativeChartData.at(i);
            EXPECT_EQ(row.isPositive ? down : up, 0);
            EXPECT_TRUE(height == up + down || (std::isnan(height) && std::isnan(up + down)));
        }
    }

    std::mt19937 m_random;
    World m_world;
    WallClock m_wall;
    Book m_book;
    Instant m_now;
};

TEST(Ledger, ShowsWhatThePlainestCountOfItGives) {
    // Zones of many kinds, whose rules have not changed of late.
    const char* const zones[] = {"Europe/Berlin",       "Asia/Kolkata",     "America/Sao_Paulo",
                                 "Australia/Lord_Howe", "America/New_York", "UTC"};
    const unsigned ledgers = qEnvironmentVariableIsSet("KOVAMO_ALL_ZONES") ? 10000 : 60;
    for (unsigned seed = 0; seed < ledgers; ++seed) {
        SCOPED_TRACE(testing::Message() << "ledger " << seed);
        RandomLedger ledger(seed, zones[seed % std::size(zones)]);
        ASSERT_NO_FATAL_FAILURE(ledger.change());
        ASSERT_NO_FATAL_FAILURE(ledger.change());
    }
}

} // namespace
} // namespace kovamo
