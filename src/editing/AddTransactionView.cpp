#include "AddTransactionView.h"

#include "model/PersistenceController.h"
#include "model/RecurringType.h"
#include "model/TransactionRefresh.h"
#include "platform/foundation/NotificationCenter.h"

#include <utility>

namespace kovamo {

namespace {

QString onlyDigits(QString text) {
    return text.removeIf([](QChar character) { return character < u'0' || character > u'9'; });
}

constexpr std::pair<RecurringType, const char*> labels[] = {{RecurringType::monthly, "Monthly"},
                                                            {RecurringType::yearly, "Yearly"}};

/// The label of a stored type; a text that another program has stored stands for itself.
QString typeLabel(const QString& stored) {
    for (const auto& [type, label] : labels)
        if (recurringType(stored) == type)
            return QString::fromLatin1(label);
    return stored.left(1).toUpper() + stored.mid(1);
}

/// What is stored for a type's label.
QString storedType(const QString& chosen) {
    for (const auto& [type, label] : labels)
        if (chosen == QLatin1String(label))
            return storedName(type);
    return chosen.toLower();
}

std::int32_t parsedAmount(const QString& text) {
    bool isNumber = false;
    const std::int32_t amount = text.toInt(&isNumber);
    if (!isNumber)
        fatalError(QStringLiteral("The amount %1 is not a whole number of 32 bits").arg(text));
    return amount;
}

} // namespace

AddTransactionView::AddTransactionView(ManagedObjectContext& viewContext, Transaction* existing,
                                       PresentationMode presentationMode)
    : m_viewContext(viewContext), m_presentationMode(std::move(presentationMode)),
      m_startDate(Clock::now()), m_endDate(m_startDate), m_existingTransaction(existing),
      m_selectedType(types().front()), m_selectedPositive(positiveTypes().front()) {
    viewContext.prepareToSave();
    if (!existing)
        return;
    m_emoji = required(existing->id(), existing->emoji(), "emoji");
    m_title = required(existing->id(), existing->title(), "title");
    m_amount = QString::number(existing->amount());
    m_isRecurring = existing->isRecurring();
    m_startDate = required(existing->id(), existing->startDate(), "startDate");
    m_endDate = required(existing->id(), existing->endDate(), "endDate");
    if (const auto type = existing->recurringType())
        m_selectedType = typeLabel(*type);
    m_selectedPositive = positiveTypes().at(existing->isPositive() ? 0 : 1);
}

QString AddTransactionView::navigationTitle() const {
    return m_existingTransaction ? QStringLiteral("Edit Transaction")
                                 : QStringLiteral("New Transaction");
}

QStringList AddTransactionView::positiveTypes() {
    return {QStringLiteral("Earning"), QStringLiteral("Spending")};
}

QStringList AddTransactionView::types() {
    QStringList types;
    for (const auto& [type, label] : labels)
        types.append(QString::fromLatin1(label));
    return types;
}

template<typename T>
bool AddTransactionView::assign(T& field, const T& value, void (AddTransactionView::*changed)()) {
    if (field == value)
        return false;
    const bool couldSave = canSave();
    field = value;
    Q_EMIT(this->*changed)();
    if (canSave() != couldSave)
        Q_EMIT canSaveChanged();
    return true;
}

void AddTransactionView::setEmoji(const QString& emoji) {
    assign(m_emoji, emoji, &AddTransactionView::emojiChanged);
}

void AddTransactionView::setTitle(const QString& title) {
    assign(m_title, title, &AddTransactionView::titleChanged);
}

void AddTransactionView::setAmount(const QString& amount) {
    const QString digits = onlyDigits(amount);
    // The text field keeps showing a rejected character until the property is signalled.
    if (!assign(m_amount, digits, &AddTransactionView::amountChanged) && digits != amount)
        Q_EMIT amountChanged();
}

void AddTransactionView::setSelectedPositive(const QString& positive) {
    assign(m_selectedPositive, positive, &AddTransactionView::selectedPositiveChanged);
}

void AddTransactionView::setIsRecurring(bool isRecurring) {
    assign(m_isRecurring, isRecurring, &AddTransactionView::isRecurringChanged);
}

void AddTransactionView::setSelectedType(const QString& type) {
    assign(m_selectedType, type, &AddTransactionView::selectedTypeChanged);
}

double AddTransactionView::startDate() const {
    return momentOf(m_startDate);
}

void AddTransactionView::setStartDate(double moment) {
    assign(m_startDate, instantOf(moment), &AddTransactionView::startDateChanged);
}

double AddTransactionView::endDate() const {
    return momentOf(m_endDate);
}

void AddTransactionView::setEndDate(double moment) {
    assign(m_endDate, instantOf(moment), &AddTransactionView::endDateChanged);
}

bool AddTransactionView::canSave() const {
    return !m_emoji.isEmpty() && !m_title.isEmpty() && !m_amount.isEmpty();
}

void AddTransactionView::save() {
    // Save can be pressed again while the form slides off the screen.
    if (!canSave() || std::exchange(m_isSaved, true))
        return;
    try {
        Transaction& transaction =
            m_existingTransaction ? *m_existingTransaction : m_viewContext.insert<Transaction>();
        if (!m_existingTransaction)
            transaction.setId(QUuid::createUuid());
        transaction.setTimestamp(Clock::now());
        transaction.setAmount(parsedAmount(m_amount));
        transaction.setIsPositive(m_selectedPositive == positiveTypes().front());
        transaction.setIsRecurring(m_isRecurring);
        transaction.setRecurringType(storedType(m_selectedType));
        transaction.setTitle(m_title);
        transaction.setEmoji(m_emoji);
        transaction.setStartDate(m_startDate);
        transaction.setEndDate(m_endDate);
        m_viewContext.save();
    } catch (const StoreError& error) {
        unresolvedError(error);
    }
    NotificationCenter::defaultCenter().post(transactionRefresh(), QStringLiteral("refresh"));
    m_presentationMode.dismiss();
}

} // namespace kovamo
