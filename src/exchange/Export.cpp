#include "Export.h"

#include "exchange/records/RecordWriter.h"
#include "platform/objectstore/store/Store.h"

namespace kovamo {

std::optional<qint64> exportRecords(Store& store, ExchangeFormat format, QIODevice& device,
                                    const std::function<bool(std::span<const Value>)>& accepts) {
    RecordWriter writer(device, format);
    store.forEach([&](ObjectID, std::span<const Value> values) {
        return (accepts && !accepts(values)) || writer.write(values);
    });
    return writer.flush() ? std::optional(writer.count()) : std::nullopt;
}

} // namespace kovamo
