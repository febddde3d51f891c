#pragma once

#include "platform/objectstore/EntityDescription.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Statement.h>
#include <optional>

namespace kovamo {

/// Binds `value` to the parameter of `statement` with the number `index`, from 1.
void bind(SQLite::Statement& statement, int index, const Value& value);

/// What a column holds of an attribute; nothing for a value that the attribute cannot have, which
/// a table made by others may hold.
[[nodiscard]] std::optional<Value> valueOf(const SQLite::Column& column,
                                           const AttributeDescription& attribute);

} // namespace kovamo
