#pragma once

#include "EntityDescription.h"

#include <optional>
#include <span>

namespace kovamo {

/// A record in a context. One object stands for a record for as long as the context lives, also
/// after the record is deleted. Its values are read from the store when they are first asked for;
/// a store that cannot yield them is a fatal error.
class ManagedObject {
  public:
    virtual ~ManagedObject() = default;
    Q_DISABLE_COPY_MOVE(ManagedObject)

    [[nodiscard]] ObjectID objectID() const { return m_objectID; }

    /// Whether the record has values; it has none where another writer deleted it before they were
    /// read.
    [[nodiscard]] bool exists() const;

    /// The values of all attributes, in the entity's order. Requires: the record exists.
    [[nodiscard]] std::span<const Value> values() const {
        if (m_values.empty() || m_isStale)
            require();
        return m_values;
    }

    /// Sets the attribute at `index`. Requires: `value` absent or of the attribute's type.
    void setValue(std::size_t index, Value value);

  protected:
    ManagedObject(ManagedObjectContext& context, ObjectID objectID)
        : m_context(context), m_objectID(objectID) {}

    /// The value at `index` as a `T`; requires that it is present.
    template<typename T>
    [[nodiscard]] const T& scalar(std::size_t index) const {
        return std::get<T>(values()[index]);
    }

    /// The value at `index` as a `T`, if it is present.
    template<typename T>
    [[nodiscard]] std::optional<T> optional(std::size_t index) const {
        const Value& value = values()[index];
        return isAbsent(value) ? std::nullopt : std::optional<T>(std::get<T>(value));
    }

    /// Sets the attribute at `index`, or makes it absent.
    template<typename T>
    void setOptional(std::size_t index, const std::optional<T>& value) {
        setValue(index, value ? Value(*value) : Value());
    }

  private:
    friend class ManagedObjectContext;

    /// Keeps what was read of the record: its values, or none where there is no record any more.
    void take(std::vector<Value> values) const;
    /// Called when values have changed or were read again.
    virtual void valuesChanged() const {}

    void require() const;
    // What is pending here goes before what another process wrote.
    void makeStale() { m_isStale = !m_isInserted && !m_isUpdated && !m_isDeleted; }

    ManagedObjectContext& m_context;
    ObjectID m_objectID;
    mutable std::vector<Value> m_values;
    // Another process may have changed the row since its values were read.
    mutable bool m_isStale = false;
    bool m_isInserted = false;
    bool m_isUpdated = false;
    bool m_isDeleted = false;
    // Whether it is in the changes that objectsDidChange() will announce next.
    bool m_isUnannounced = false;
};

} // namespace kovamo
