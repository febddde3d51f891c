#pragma once

#include "exchange/records/ExchangeFormat.h"
#include "platform/objectstore/Value.h"

#include <QIODevice>
#include <functional>
#include <optional>
#include <span>

namespace kovamo {

class Store;

/// Writes all records of `store` to `device`, in the order in which they were added, as CSV or
/// JSON. `accepts`, where given, tells by a record's values which ones. Returns how many, or
/// nothing where the device cannot be written to, and its errorString() tells why. Throws
/// StoreError where the store cannot be read.
[[nodiscard]] std::optional<qint64>
exportRecords(Store& store, ExchangeFormat format, QIODevice& device,
              const std::function<bool(std::span<const Value>)>& accepts = {});

} // namespace kovamo
