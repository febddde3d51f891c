#pragma once

#include "EntityDescription.h"

#include <QString>
#include <memory>
#include <span>
#include <vector>

namespace kovamo {

/// A condition on records, written as text: comparisons `attribute operator constant` with
/// `==` (or `=`), `!=` (or `<>`), `<`, `<=`, `>`, `>=`, joined by AND and OR and grouped by
/// parentheses. A constant is YES, NO or %@, which stands for the next argument. A comparison
/// with an absent value never holds.
class Predicate {
  public:
    /// Holds for every record.
    Predicate() = default;

    /// A text that is no predicate, or has more or fewer %@ than arguments, is a fatal error that
    /// names it.
    explicit Predicate(const QString& format, std::vector<Value> arguments = {});

    /// Whether the predicate holds for a record with `values`. An attribute that the entity does
    /// not have, or of another type than its constant, is a fatal error that names it.
    [[nodiscard]] bool matches(const EntityDescription& entity,
                               std::span<const Value> values) const;

    /// The condition as SQL with a ? for each argument in order; empty when it always holds. Fails
    /// as matches() does.
    [[nodiscard]] QString sql(const EntityDescription& entity) const;

    /// The constants that the ? of sql() stand for.
    [[nodiscard]] const std::vector<Value>& arguments() const { return m_arguments; }

    /// Whether both are of one text and the same constants.
    friend bool operator==(const Predicate& a, const Predicate& b) {
        return a.m_format == b.m_format && a.m_arguments == b.m_arguments;
    }

    struct Node;

  private:
    QString m_format;
    std::vector<Value> m_arguments;
    std::shared_ptr<const Node> m_root;
};

} // namespace kovamo
