#include "StatementReader.h"

#include "model/Transaction.h"

#include <limits>

namespace kovamo {

namespace {

/// The namespace of the UUIDs that are made of a statement's records.
constexpr QUuid nameSpace(0x6f1d6c0e, 0x2f0b, 0x4c58, 0x9d, 0x3a, 0x57, 0x1e, 0xc2, 0x84, 0xab,
                          0x90);

} // namespace

StatementReader::StatementReader(QIODevice& device, const ImportOptions& options)
    : m_device(device), m_options(options), m_start(device.pos()), m_dates(options.dateFormat) {
    if (!findHeader(',') && !findHeader(';') && !findHeader('\t'))
        throw Fault{
            QStringLiteral("No line names a date and an amount; --columns can tell what the "
                           "file calls them")};
    const char separator = m_records->separator();
    learn();
    (void)findHeader(separator);
}

bool StatementReader::findHeader(char separator) {
    constexpr int most = 50;
    m_device.seek(m_start);
    m_lines = std::make_unique<LineReader>(m_device, LineReader::longestHeader);
    m_records = std::make_unique<CsvReader>(*m_lines, separator, true);
    try {
        for (int line = 0; line < most && m_records->next(); ++line)
            if (const auto columns = statementColumns(m_records->fields(), m_options.columns)) {
                m_columns = *columns;
                return true;
            }
    } catch (const Fault&) {
        // The caller tries the next separator.
    }
    return false;
}

void StatementReader::learn() {
    for (bool isAtEnd = false; !isAtEnd;) {
        try {
            isAtEnd = !m_records->next();
        } catch (const Fault&) {
            continue; // next() reports it when the records are read
        }
        if (isAtEnd)
            break;
        m_dates.learn(text(m_columns.date));
        for (const auto& column : {m_columns.amount, m_columns.debit, m_columns.credit})
            if (column)
                m_amounts.learn(text(*column));
    }
    if (!m_dates.isClear())
        throw Fault{QStringLiteral("The dates can be read in more than one way; --date-format can "
                                   "say how, as in --date-format dd/MM/yyyy")};
}

QString StatementReader::text(std::size_t field) const {
    const auto fields = m_records->fields();
    return field < fields.size() ? statementText(fields[field]).trimmed() : QString();
}

StatementReader::Money StatementReader::money() const {
    const auto amountOf = [&](std::size_t column) {
        const QString words = text(column);
        const auto amount = m_amounts.amount(words);
        if (!amount)
            throw Fault{QStringLiteral("The amount \"%1\" is no number").arg(words)};
        return *amount;
    };
    Money money;
    if (m_columns.amount && !text(*m_columns.amount).isEmpty()) {
        money.amount = amountOf(*m_columns.amount);
        money.isEarning = !money.amount.isNegative;
        const auto word = m_columns.kind ? isEarningWord(text(*m_columns.kind)) : std::nullopt;
        if (word && !money.amount.isNegative)
            money.isEarning = *word;
        return money;
    }
    const auto sizeOf = [&](const std::optional<std::size_t>& column) {
        return column && !text(*column).isEmpty() ? amountOf(*column) : StatementAmount();
    };
    const StatementAmount debit = sizeOf(m_columns.debit);
    const StatementAmount credit = sizeOf(m_columns.credit);
    if ((debit.exact.isEmpty() && credit.exact.isEmpty()) ||
        (debit.hundredths != 0 && credit.hundredths != 0))
        throw Fault{QStringLiteral("There is not one amount")};
    money.isEarning = credit.hundredths != 0;
    money.amount = money.isEarning ? credit : debit;
    return money;
}

QString StatementReader::title() const {
    for (const std::size_t column : m_columns.titles)
        if (const QString words = text(column).simplified(); !words.isEmpty())
            return words;
    return QStringLiteral("");
}

bool StatementReader::next(std::vector<Value>& values) {
    if (!m_records->next())
        return false;
    const QString dateText = text(m_columns.date);
    const auto day = m_dates.day(dateText);
    if (!day)
        throw Fault{QStringLiteral("The date \"%1\" is none").arg(dateText)};
    const auto [isEarning, amount] = money();
    if (amount.whole > std::numeric_limits<std::int32_t>::max())
        throw Fault{QStringLiteral("The amount %1 is too large").arg(amount.exact)};
    const QString title = this->title();
    const QString emoji = m_columns.emoji ? text(*m_columns.emoji) : QString();
    const QString contents =
        QStringList{day->toString(Qt::ISODate), amount.exact,
                    isEarning ? QStringLiteral("earning") : QStringLiteral("spending"), title}
            .join(u'\n');
    const int number = m_equals[QUuid::createUuidV5(nameSpace, contents)]++;
    if (amount.exact.contains(u'.')) {
        ++m_rounding.count;
        m_rounding.hundredths += amount.hundredths - amount.whole * 100;
    }
    constexpr std::chrono::hours noon(12);
    const Instant local(std::chrono::days(day->toJulianDay() - QDate(1970, 1, 1).toJulianDay()));
    const Instant instant = m_zone.instantOf(local + noon);
    values.assign(Transaction::entity().attributes.size(), {});
    values[Transaction::Amount] = static_cast<std::int32_t>(amount.whole);
    values[Transaction::Emoji] = emoji.isEmpty() ? m_options.emoji : emoji;
    values[Transaction::EndDate] = instant;
    values[Transaction::Id] =
        QUuid::createUuidV5(nameSpace, contents + u'\n' + QString::number(number));
    values[Transaction::IsPositive] = isEarning;
    values[Transaction::IsRecurring] = false;
    values[Transaction::RecurringType] = QStringLiteral("monthly");
    values[Transaction::StartDate] = instant;
    values[Transaction::Timestamp] = instant;
    values[Transaction::Title] = title;
    return true;
}

} // namespace kovamo
