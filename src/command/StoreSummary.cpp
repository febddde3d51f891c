#include "StoreSummary.h"

#include "model/Transaction.h"
#include "platform/foundation/Formatters.h"
#include "platform/objectstore/file/StoreError.h"
#include "platform/objectstore/store/StoreInspection.h"

namespace kovamo {

QString summaryOf(const QString& storePath) {
    try {
        StoreInspection store(storePath, Transaction::entity());
        const std::int64_t count = store.count();
        const QString records = QStringLiteral("%1 %2").arg(count, 7).arg(
            QLatin1String(count == 1 ? "record" : "records"));
        const auto newest =
            store.latest(Transaction::entity().attributes[Transaction::Timestamp].name);
        return newest ? records + u", the newest saved on " + minuteText(*newest) : records;
    } catch (const StoreError& error) {
        return error.description();
    }
}

} // namespace kovamo
