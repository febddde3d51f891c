#include "Predicate.h"

#include "platform/foundation/FatalError.h"

#include <QRegularExpression>
#include <QStringList>
#include <array>

namespace kovamo {

enum class Operator { equal, notEqual, less, lessOrEqual, greater, greaterOrEqual };
enum class Junction { none, conjunction, disjunction };

/// A comparison (no junction) or two conditions joined.
struct Predicate::Node {
    Junction junction = Junction::none;
    std::shared_ptr<const Node> left;
    std::shared_ptr<const Node> right;
    QString attribute;
    Operator comparison = Operator::equal;
    std::size_t argument = 0;
};

namespace {

using Node = Predicate::Node;
using NodePointer = std::shared_ptr<const Node>;

// The parser is recursive: without a limit, a text of parentheses overflows the stack.
constexpr int maximumDepth = 200;

struct OperatorName {
    const char* text;
    Operator value;
    const char* sql;
};

constexpr std::array<OperatorName, 8> operatorNames{{
    {"==", Operator::equal, "="},
    {"=", Operator::equal, "="},
    {"!=", Operator::notEqual, "<>"},
    {"<>", Operator::notEqual, "<>"},
    {"<=", Operator::lessOrEqual, "<="},
    {">=", Operator::greaterOrEqual, ">="},
    {"<", Operator::less, "<"},
    {">", Operator::greater, ">"},
}};

/// Recursive descent over the words of a predicate's text.
class Parser {
  public:
    Parser(const QString& format, std::vector<Value> given)
        : m_format(format), m_given(std::move(given)) {
        static const QRegularExpression word(
            QStringLiteral("\\s*(%@|==|!=|<>|<=|>=|[=<>()]|[A-Za-z_][A-Za-z0-9_]*|\\S)"));
        for (auto words = word.globalMatch(format); words.hasNext();)
            m_words.append(words.next().captured(1));
    }

    NodePointer parse() {
        NodePointer root = disjunction(0);
        if (m_next != m_words.size() || m_nextGiven != m_given.size())
            fail();
        return root;
    }

    std::vector<Value> arguments;

  private:
    [[noreturn]] void fail() const {
        fatalError(QStringLiteral("Malformed predicate: \"%1\"").arg(m_format));
    }

    QString next() { return m_next < m_words.size() ? m_words[m_next++] : QString(); }

    bool accept(const char* word) {
        const bool found = m_next < m_words.size() &&
                           m_words[m_next].compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
        m_next += found ? 1 : 0;
        return found;
    }

    NodePointer joined(Junction junction, NodePointer left, NodePointer right) {
        return std::make_shared<Node>(Node{junction, std::move(left), std::move(right), {}, {}, 0});
    }

    NodePointer disjunction(int depth) {
        NodePointer node = conjunction(depth);
        while (accept("OR"))
            node = joined(Junction::disjunction, std::move(node), conjunction(depth));
        return node;
    }

    NodePointer conjunction(int depth) {
        NodePointer node = condition(depth);
        while (accept("AND"))
            node = joined(Junction::conjunction, std::move(node), condition(depth));
        return node;
    }

    NodePointer condition(int depth) {
        if (!accept("("))
            return comparison();
        if (depth == maximumDepth)
            fail();
        NodePointer node = disjunction(depth + 1);
        if (!accept(")"))
            fail();
        return node;
    }

    NodePointer comparison() {
        static const QRegularExpression name(QStringLiteral("^[A-Za-z_]"));
        Node node;
        node.attribute = next();
        if (!name.match(node.attribute).hasMatch())
            fail();
        node.comparison = comparisonOperator();
        node.argument = arguments.size();
        arguments.push_back(constant());
        return std::make_shared<Node>(std::move(node));
    }

    Operator comparisonOperator() {
        const QString word = next();
        for (const OperatorName& name : operatorNames)
            if (word == QLatin1String(name.text))
                return name.value;
        fail();
    }

    Value constant() {
        if (accept("YES"))
            return true;
        if (accept("NO"))
            return false;
        if (!accept("%@") || m_nextGiven == m_given.size())
            fail();
        return m_given[m_nextGiven++];
    }

    const QString& m_format;
    std::vector<Value> m_given;
    std::size_t m_nextGiven = 0;
    QStringList m_words;
    qsizetype m_next = 0;
};

bool holds(Operator comparison, std::strong_ordering order) {
    switch (comparison) {
    case Operator::equal:
        return order == 0;
    case Operator::notEqual:
        return order != 0;
    case Operator::less:
        return order < 0;
    case Operator::lessOrEqual:
        return order <= 0;
    case Operator::greater:
        return order > 0;
    case Operator::greaterOrEqual:
        return order >= 0;
    }
    Q_UNREACHABLE();
}

std::size_t checkedAttribute(const Node& node, const EntityDescription& entity,
                             const Value& argument, const QString& format) {
    const std::size_t index = entity.attributeIndex(node.attribute);
    if (!isAbsent(argument) &&
        argument.index() != static_cast<std::size_t>(entity.attributes[index].type))
        fatalError(
            QStringLiteral("The predicate \"%1\" compares \"%2\" with a value of another type")
                .arg(format, node.attribute));
    return index;
}

} // namespace

Predicate::Predicate(const QString& format, std::vector<Value> arguments) : m_format(format) {
    Parser parser(format, std::move(arguments));
    m_root = parser.parse();
    m_arguments = std::move(parser.arguments);
}

bool Predicate::matches(const EntityDescription& entity, std::span<const Value> values) const {
    const auto nodeMatches = [&](const auto& self, const Node& node) -> bool {
        if (node.junction == Junction::conjunction)
            return self(self, *node.left) && self(self, *node.right);
        if (node.junction == Junction::disjunction)
            return self(self, *node.left) || self(self, *node.right);
        const Value& argument = m_arguments[node.argument];
        const Value& value = values[checkedAttribute(node, entity, argument, m_format)];
        return !isAbsent(value) && !isAbsent(argument) &&
               holds(node.comparison, compare(value, argument));
    };
    return !m_root || nodeMatches(nodeMatches, *m_root);
}

QString Predicate::sql(const EntityDescription& entity) const {
    const auto nodeSql = [&](const auto& self, const Node& node) -> QString {
        if (node.junction != Junction::none)
            return QStringLiteral("(%1 %2 %3)")
                .arg(self(self, *node.left),
                     QLatin1String(node.junction == Junction::conjunction ? "AND" : "OR"),
                     self(self, *node.right));
        (void)checkedAttribute(node, entity, m_arguments[node.argument], m_format);
        const auto name = std::ranges::find(operatorNames, node.comparison, &OperatorName::value);
        return QStringLiteral("\"%1\" %2 ?").arg(node.attribute, QLatin1String(name->sql));
    };
    return m_root ? nodeSql(nodeSql, *m_root) : QString();
}

} // namespace kovamo
