#include "Journal.h"

#include "exchange/records/Iso8601.h"
#include "model/Transaction.h"
#include "platform/foundation/Calendar.h"
#include "platform/objectstore/store/Store.h"

#include <algorithm>

namespace kovamo {

using namespace std::chrono;

namespace {

constexpr Instant firstDate = sys_days(year(1400) / January / 2);
constexpr Instant lastDate = sys_days(year(9999) / December / 30);

/// A text on one line, without the signs that begin a comment or part a payee from a note.
std::string payee(const std::optional<QString>& text) {
    QString words = text.value_or(QString());
    for (QChar& character : words)
        if (character.category() == QChar::Other_Control)
            character = u' ';
    words.replace(u';', u',').replace(u'|', u'/');
    return words.simplified().toStdString();
}

TransactionPresentation presentation(std::span<const Value> values) {
    const auto get = [&]<typename T>(std::optional<T>& field, Transaction::Attribute attribute) {
        if (const auto* value = std::get_if<T>(&values[attribute]))
            field = *value;
    };
    TransactionPresentation transaction;
    get(transaction.title, Transaction::Title);
    get(transaction.emoji, Transaction::Emoji);
    get(transaction.startDate, Transaction::StartDate);
    get(transaction.endDate, Transaction::EndDate);
    get(transaction.recurringType, Transaction::RecurringType);
    get(transaction.isRecurring, Transaction::IsRecurring);
    transaction.isPositive = std::get<bool>(values[Transaction::IsPositive]);
    transaction.amount = std::get<std::int32_t>(values[Transaction::Amount]);
    return transaction;
}

/// How many months lie between two times of a recurrence; none for one that never comes again.
int stepOf(const std::optional<QString>& recurringType) {
    if (recurringType == QLatin1String("monthly"))
        return 1;
    return recurringType == QLatin1String("yearly") ? 12 : 0;
}

} // namespace

bool JournalWriter::write(const TransactionPresentation& transaction) {
    constexpr std::size_t enough = 256 * 1024;
    const auto date = transaction.startDate;
    const bool isDated = date && *date >= firstDate && *date < lastDate;
    const std::int64_t size = transaction.amount;
    const std::string gain = std::to_string(transaction.isPositive ? size : -size);
    const std::string loss = std::to_string(transaction.isPositive ? -size : size);
    if (isDated) {
        std::string day;
        appendIso8601(day, *date, m_zone);
        // Without a code in brackets, ledger misreads a payee that begins with a bracket or a star.
        m_text += day.substr(0, 10) + " * (" + std::to_string(++m_count) + ") " +
                  payee(transaction.title) + '\n';
        if (const std::string emoji = payee(transaction.emoji); !emoji.empty())
            m_text += "    ; emoji: " + emoji + '\n';
        m_text += std::string("    ") + (transaction.isPositive ? "Income" : "Expenses") + "  " +
                  loss + "\n    Assets  " + gain + "\n\n";
    } else {
        m_text += "; without a date: " + payee(transaction.title) + ", " + gain + "\n\n";
    }
    return m_text.size() < enough || flush();
}

bool JournalWriter::flush() {
    const auto size = qint64(m_text.size());
    m_isWritten = m_isWritten && m_device.write(m_text.data(), size) == size;
    m_text.clear();
    return m_isWritten;
}

std::optional<qint64> exportJournal(Store& store, QIODevice& device, Instant until) {
    const Calendar calendar;
    JournalWriter writer(device);
    const auto writeTimes = [&](TransactionPresentation transaction) {
        const Instant start = *transaction.startDate;
        const Instant end = std::min(until, transaction.endDate.value_or(until));
        const CalendarDay first = calendar.day(start);
        bool isWritten = true;
        for (int months = 0, step = stepOf(transaction.recurringType);
             step > 0 && isWritten && *transaction.startDate <= end;) {
            isWritten = writer.write(transaction);
            months += step;
            CalendarDay day{first.year, first.month + months, 1};
            day.day = std::min(first.day, calendar.daysInMonth(day));
            transaction.startDate = calendar.moved(start, day);
        }
        return isWritten;
    };
    store.forEach([&](ObjectID, std::span<const Value> values) {
        TransactionPresentation transaction = presentation(values);
        const bool isDated = transaction.startDate >= firstDate && transaction.startDate < lastDate;
        return transaction.isRecurring == true && isDated ? writeTimes(std::move(transaction))
                                                          : writer.write(transaction);
    });
    return writer.flush() ? std::optional(writer.count()) : std::nullopt;
}

} // namespace kovamo
