#include "TransactionCheck.h"

#include "Recurrence.h"
#include "model/RecurringType.h"

#include <utility>

namespace kovamo {

namespace {

const QString& attributeName(std::size_t attribute) {
    return Transaction::entity().attributes[attribute].name;
}

} // namespace

TransactionCheck::TransactionCheck()
    : m_slotsOfFrames{monthSlots(1), monthSlots(2), monthSlots(3)} {}

QStringList TransactionCheck::faultsOf(StoreInspection::Record record) const {
    QStringList faults;
    for (std::size_t i = 0; i < record.size(); ++i)
        if (!record[i])
            faults.append(u"its " + attributeName(i) + u" has a wrong type");
    // The form reads both dates, of a one-off, too.
    for (const auto attribute :
         {Transaction::Emoji, Transaction::Title, Transaction::StartDate, Transaction::EndDate})
        if (record[attribute] && isAbsent(*record[attribute]))
            faults.append(u"it has no " + attributeName(attribute));
    if (const auto* amount = valueOf<std::int32_t>(record, Transaction::Amount);
        amount && *amount < 0)
        faults.append(QStringLiteral("its amount is negative: %1").arg(*amount));
    if (const auto* recurs = valueOf<bool>(record, Transaction::IsRecurring); recurs && *recurs)
        checkRecurrence(record, faults);
    return faults;
}

QStringList TransactionCheck::faultsOf(std::span<const Value> values) const {
    const std::vector<std::optional<Value>> record(values.begin(), values.end());
    return faultsOf(record);
}

void TransactionCheck::checkRecurrence(StoreInspection::Record record, QStringList& faults) const {
    const auto* type = valueOf<QString>(record, Transaction::RecurringType);
    const auto known = type ? recurringType(*type) : std::nullopt;
    if (!known)
        faults.append(QStringLiteral("it recurs neither monthly nor yearly"));
    const auto* amount = valueOf<std::int32_t>(record, Transaction::Amount);
    const auto* start = valueOf<Instant>(record, Transaction::StartDate);
    const auto* end = valueOf<Instant>(record, Transaction::EndDate);
    if (known != RecurringType::monthly || !amount || !start || !end)
        return;
    for (const std::vector<MonthSlot>& slots : m_slotsOfFrames) {
        const std::int64_t sum = std::int64_t{*amount} * activeMonths(*start, *end, slots);
        if (!std::in_range<std::int32_t>(sum))
            faults.append(QStringLiteral("its amount is too large for %1 months: %2")
                              .arg(slots.size())
                              .arg(sum));
    }
}

} // namespace kovamo
