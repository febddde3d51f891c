#include "WayBack.h"

#include "model/TransactionRefresh.h"
#include "platform/foundation/Calendar.h"
#include "platform/foundation/Formatters.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/objectstore/file/KeptCopies.h"

#include <QDateTime>

namespace kovamo {

namespace {

/// The day of a copy's name, "2026-11-23", in the user's words.
QString dayInWords(const QString& day) {
    constexpr int noon = 12;
    const QDateTime time(QDate::fromString(day, Qt::ISODate), QTime(noon, 0));
    return localizedDateText(Instant(std::chrono::milliseconds(time.toMSecsSinceEpoch())),
                             QStringLiteral("yMMMd"));
}

} // namespace

WayBack::WayBack(const PersistentContainer& container)
    : m_container(container), m_former(container.formerStore()) {
    if (!m_former)
        return;
    const QString day = dayInWords(m_former->day);
    const bool isOne = m_former->records == 1;
    m_message = QStringLiteral("Your transactions were not found, and Kovamo began anew. A copy of "
                               "%1 has %2 %3.")
                    .arg(day, numberText(m_former->records),
                         QLatin1String(isOne ? "transaction" : "transactions"));
    m_action = u"Go Back to the Copy of " + day;
}

void WayBack::goBack() {
    try {
        (void)goBackTo(m_former->copyPath, m_container.storePath());
        m_former.reset();
    } catch (const StoreError& error) {
        m_message = error.description();
    }
    Q_EMIT changed();
    NotificationCenter::defaultCenter().post(transactionRefresh());
}

void WayBack::keepEmpty() {
    m_former.reset();
    Q_EMIT changed();
}

} // namespace kovamo
