#include "Shape.h"

#include <algorithm>
#include <array>
#include <vector>

namespace kovamo {

namespace {

/// One stretch of a path, a straight line kept as the cubic that runs along it evenly.
struct Stretch {
    std::array<QPointF, 4> points;
    bool straight;
    bool opensSubpath;

    [[nodiscard]] QPainterPath path() const {
        QPainterPath path(points[0]);
        addTo(path);
        return path;
    }

    void addTo(QPainterPath& path) const {
        if (straight)
            path.lineTo(points[3]);
        else
            path.cubicTo(points[1], points[2], points[3]);
    }
};

QPointF between(QPointF a, QPointF b, double t) {
    return a + (b - a) * t;
}

/// The two halves of a cubic cut at parameter t, by repeated interpolation.
std::pair<Stretch, Stretch> cut(const Stretch& whole, double t) {
    const auto& [a, b, c, d] = whole.points;
    const QPointF ab = between(a, b, t), bc = between(b, c, t), cd = between(c, d, t);
    const QPointF abc = between(ab, bc, t), bcd = between(bc, cd, t);
    const QPointF middle = between(abc, bcd, t);
    return {{{a, ab, abc, middle}, whole.straight, whole.opensSubpath},
            {{middle, bcd, cd, d}, whole.straight, true}};
}

std::vector<Stretch> stretches(const QPainterPath& path) {
    std::vector<Stretch> found;
    QPointF current;
    bool opens = true;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPointF point = path.elementAt(i);
        if (path.elementAt(i).isMoveTo()) {
            opens = true;
            current = point;
            continue;
        }
        const bool straight = path.elementAt(i).isLineTo();
        const QPointF end = straight ? point : QPointF(path.elementAt(i + 2));
        if (straight)
            found.push_back(
                {{current, between(current, end, 1. / 3), between(current, end, 2. / 3), end},
                 true,
                 opens});
        else
            found.push_back({{current, point, QPointF(path.elementAt(i + 1)), end}, false, opens});
        i += straight ? 0 : 2;
        current = end;
        opens = false;
    }
    return found;
}

} // namespace

QPainterPath trimmed(const QPainterPath& path, double from, double to) {
    if (from <= 0 && to >= 1)
        return path;
    const std::vector<Stretch> all = stretches(path);
    std::vector<double> lengths;
    double total = 0;
    for (const Stretch& stretch : all)
        total += lengths.emplace_back(stretch.path().length());

    QPainterPath part;
    const double start = std::max(from, 0.) * total, end = std::min(to, 1.) * total;
    double passed = 0;
    for (std::size_t i = 0; i < all.size() && passed < end; passed += lengths[i++]) {
        const double first = std::max(start - passed, 0.),
                     last = std::min(end - passed, lengths[i]);
        if (!(first < last))
            continue;
        Stretch rest = all[i];
        if (last < lengths[i])
            rest = cut(rest, rest.path().percentAtLength(last)).first;
        if (first > 0)
            rest = cut(rest, rest.path().percentAtLength(first)).second;
        if (part.isEmpty() || rest.opensSubpath)
            part.moveTo(rest.points[0]);
        rest.addTo(part);
    }
    return part;
}

} // namespace kovamo
