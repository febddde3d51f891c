#include "SystemImage.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

namespace kovamo {

namespace {

// Every symbol is drawn on a square of 24 units: lines to be stroked, areas to be filled, and
// lines cut out of the areas.
struct Symbol {
    QPainterPath strokes;
    QPainterPath areas;
    QPainterPath cuts;
};

QPainterPath polyline(std::initializer_list<QPointF> points) {
    QPainterPath path(*points.begin());
    for (const QPointF& point : points)
        path.lineTo(point);
    return path;
}

QPainterPath circle(QPointF centre, double radius) {
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

QPainterPath cross(double reach) {
    const double low = 12 - reach, high = 12 + reach;
    QPainterPath path = polyline({{low, low}, {high, high}});
    path.addPath(polyline({{low, high}, {high, low}}));
    return path;
}

Symbol plus() {
    Symbol symbol{polyline({{12, 3.5}, {12, 20.5}}), {}, {}};
    symbol.strokes.addPath(polyline({{3.5, 12}, {20.5, 12}}));
    return symbol;
}

Symbol bulletList() {
    Symbol symbol;
    for (const double y : {5.5, 12.0, 18.5}) {
        symbol.areas.addPath(circle({3.8, y}, 1.5));
        symbol.strokes.addPath(polyline({{8.5, y}, {21.5, y}}));
    }
    return symbol;
}

Symbol circlingArrows() {
    Symbol symbol{circle({12, 12}, 10.4), {}, {}};
    constexpr double radius = 5.4, from = 25, sweep = 120, reach = 2.7;
    for (const double turn : {0.0, 180.0}) {
        QPainterPath arc;
        const QRectF square(12 - radius, 12 - radius, 2 * radius, 2 * radius);
        arc.arcMoveTo(square, turn + from + sweep);
        arc.arcTo(square, turn + from + sweep, -sweep);
        symbol.strokes.addPath(arc);
        // The head sits on the arc's end and points along it, clockwise.
        const double angle = (turn + from) * std::numbers::pi / 180;
        const QPointF out(std::cos(angle), -std::sin(angle)), along(-out.y(), out.x());
        const QPointF end = arc.currentPosition();
        symbol.areas.addPath(polyline({end + out * reach - along * 0.6, end + along * reach * 1.4,
                                       end - out * reach - along * 0.6}));
    }
    return symbol;
}

Symbol trash() {
    Symbol symbol{polyline({{4, 6}, {20, 6}}), {}, {}};
    symbol.strokes.addPath(polyline({{9, 6}, {9.4, 3.2}, {14.6, 3.2}, {15, 6}}));
    symbol.strokes.addPath(polyline({{5.8, 6}, {6.8, 21}, {17.2, 21}, {18.2, 6}}));
    for (const double x : {10.0, 14.0})
        symbol.strokes.addPath(polyline({{x, 10}, {x, 17}}));
    return symbol;
}

Symbol sharing() {
    Symbol symbol{
        polyline({{8.5, 8.5}, {5, 8.5}, {5, 21}, {19, 21}, {19, 8.5}, {15.5, 8.5}}), {}, {}};
    symbol.strokes.addPath(polyline({{12, 14.5}, {12, 2.5}}));
    symbol.strokes.addPath(polyline({{8, 6.5}, {12, 2.5}, {16, 6.5}}));
    return symbol;
}

Symbol smilingFace() {
    Symbol symbol{circle({12, 12}, 9.8), {}, {}};
    QPainterPath smile;
    smile.arcMoveTo(QRectF(6.8, 5.8, 10.4, 10.4), 205);
    smile.arcTo(QRectF(6.8, 5.8, 10.4, 10.4), 205, 130);
    symbol.strokes.addPath(smile);
    for (const double x : {8.6, 15.4})
        symbol.areas.addEllipse(QPointF(x, 9.3), 1.3, 1.7);
    return symbol;
}

Symbol symbolNamed(const QString& name) {
    if (name == QLatin1String("plus"))
        return plus();
    if (name == QLatin1String("list.bullet"))
        return bulletList();
    if (name == QLatin1String("arrow.triangle.2.circlepath.circle"))
        return circlingArrows();
    if (name == QLatin1String("chevron.left"))
        return {polyline({{15.5, 3.5}, {7.5, 12}, {15.5, 20.5}}), {}, {}};
    if (name == QLatin1String("chevron.right"))
        return {polyline({{8.5, 3.5}, {16.5, 12}, {8.5, 20.5}}), {}, {}};
    if (name == QLatin1String("xmark.circle.fill"))
        return {{}, circle({12, 12}, 11), cross(3.7)};
    if (name == QLatin1String("trash"))
        return trash();
    if (name == QLatin1String("face.smiling"))
        return smilingFace();
    if (name == QLatin1String("square.and.arrow.up"))
        return sharing();
    return {};
}

} // namespace

SystemImage::SystemImage(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setImplicitSize(22, 22);
    setAntialiasing(true);
}

void SystemImage::setName(const QString& name) {
    if (name == m_name)
        return;
    m_name = name;
    update();
    Q_EMIT nameChanged();
}

void SystemImage::setColor(const QColor& color) {
    if (color == m_color)
        return;
    m_color = color;
    update();
    Q_EMIT colorChanged();
}

void SystemImage::paint(QPainter* painter) {
    const double side = std::min(width(), height());
    const Symbol symbol = symbolNamed(m_name);
    painter->translate((width() - side) / 2, (height() - side) / 2);
    painter->scale(side / 24, side / 24);
    QPainterPathStroker stroker(QPen(Qt::black, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->fillPath(symbol.areas.subtracted(stroker.createStroke(symbol.cuts)), m_color);
    painter->strokePath(symbol.strokes,
                        QPen(m_color, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

} // namespace kovamo
