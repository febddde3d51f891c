#pragma once

#include "TransactionPresentation.h"
#include "platform/foundation/FatalError.h"
#include "platform/objectstore/FetchRequest.h"
#include "platform/objectstore/ManagedObject.h"

namespace kovamo {

/// A stored money movement. The setters need a save of the context to last.
class Transaction : public ManagedObject {
  public:
    /// The order of the entity's attributes, and so of values().
    enum Attribute : std::size_t {
        Amount,
        Emoji,
        EndDate,
        Id,
        IsPositive,
        IsRecurring,
        RecurringType,
        StartDate,
        Timestamp,
        Title,
    };

    Transaction(ManagedObjectContext& context, ObjectID objectID)
        : ManagedObject(context, objectID) {}

    /// The entity "Transaction".
    [[nodiscard]] static const EntityDescription& entity();

    /// A request for all transactions.
    [[nodiscard]] static FetchRequest fetchRequest();

    /// The size of the amount in whole units of the currency, never negative in practice.
    [[nodiscard]] std::int32_t amount() const { return scalar<std::int32_t>(Amount); }
    void setAmount(std::int32_t amount) { setValue(Amount, amount); }

    /// The emoji shown beside the title.
    [[nodiscard]] std::optional<QString> emoji() const { return optional<QString>(Emoji); }
    void setEmoji(const std::optional<QString>& emoji) { setOptional(Emoji, emoji); }

    /// The last day of a recurrence.
    [[nodiscard]] std::optional<Instant> endDate() const { return optional<Instant>(EndDate); }
    void setEndDate(const std::optional<Instant>& date) { setOptional(EndDate, date); }

    /// The identity, set once.
    [[nodiscard]] std::optional<QUuid> id() const { return optional<QUuid>(Id); }
    void setId(const std::optional<QUuid>& id) { setOptional(Id, id); }

    /// Whether the money comes in.
    [[nodiscard]] bool isPositive() const { return scalar<bool>(IsPositive); }
    void setIsPositive(bool isPositive) { setValue(IsPositive, isPositive); }

    /// Whether it repeats by recurringType() from startDate() to endDate().
    [[nodiscard]] bool isRecurring() const { return scalar<bool>(IsRecurring); }
    void setIsRecurring(bool isRecurring) { setValue(IsRecurring, isRecurring); }

    /// "monthly" or "yearly"; without meaning where it does not repeat.
    [[nodiscard]] std::optional<QString> recurringType() const {
        return optional<QString>(RecurringType);
    }
    void setRecurringType(const std::optional<QString>& type) { setOptional(RecurringType, type); }

    /// The day, or the first day of a recurrence.
    [[nodiscard]] std::optional<Instant> startDate() const { return optional<Instant>(StartDate); }
    void setStartDate(const std::optional<Instant>& date) { setOptional(StartDate, date); }

    /// When it was last saved.
    [[nodiscard]] std::optional<Instant> timestamp() const { return optional<Instant>(Timestamp); }
    void setTimestamp(const std::optional<Instant>& date) { setOptional(Timestamp, date); }

    /// The user's short description.
    [[nodiscard]] std::optional<QString> title() const { return optional<QString>(Title); }
    void setTitle(const std::optional<QString>& title) { setOptional(Title, title); }

    /// A copy of what it holds; the same one until that changes.
    [[nodiscard]] SharedPresentation presentation() const;

  private:
    void valuesChanged() const override { m_presentation.reset(); }

    mutable std::shared_ptr<const TransactionPresentation> m_presentation;
};

/// `value`, which the attribute `attribute` of the record `id` holds; an absent one is a fatal
/// error that names both.
template<typename T>
[[nodiscard]] T required(const std::optional<QUuid>& id, const std::optional<T>& value,
                         const char* attribute) {
    if (!value)
        fatalError(QStringLiteral("The transaction %1 has no %2: another program has written it. "
                                  "\"kovamo check\" names all such records, \"kovamo restore\" "
                                  "goes back to a copy of the store.")
                       .arg(id ? id->toString(QUuid::WithoutBraces) : QStringLiteral("without id"),
                            QLatin1String(attribute)));
    return *value;
}

} // namespace kovamo
