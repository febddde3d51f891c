#include "Value.h"

#include <compare>

namespace kovamo {

namespace {

std::strong_ordering order(const QString& a, const QString& b) {
    return a.toUtf8().compare(b.toUtf8()) <=> 0;
}

std::strong_ordering order(const QUuid& a, const QUuid& b) {
    return order(a.toString(), b.toString());
}

std::strong_ordering order(std::monostate, std::monostate) {
    return std::strong_ordering::equal;
}

template<typename T>
std::strong_ordering order(const T& a, const T& b) {
    return a <=> b;
}

} // namespace

std::strong_ordering compare(const Value& a, const Value& b) {
    if (a.index() != b.index())
        return a.index() <=> b.index();
    return std::visit([&b]<typename T>(const T& left) { return order(left, std::get<T>(b)); }, a);
}

} // namespace kovamo
