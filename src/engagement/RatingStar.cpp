#include "RatingStar.h"

#include <QPainter>
#include <cmath>
#include <numbers>

namespace kovamo {

RatingStar::RatingStar(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(this, &RatingStar::changed, this, [this] { update(); });
}

void RatingStar::paint(QPainter* painter) {
    constexpr double stroke = 2;
    constexpr double waist = 0.47; // of the radius; plumper than a pentagram's 0.38
    const QPointF center = boundingRect().center();
    const double radius = std::min(width(), height()) / 2 - stroke / 2;
    QPolygonF star;
    for (int corner = 0; corner < 10; ++corner) {
        const double angle = corner * std::numbers::pi / 5;
        const double reach = corner % 2 == 0 ? radius : radius * waist;
        star << center + QPointF(std::sin(angle), -std::cos(angle)) * reach;
    }
    painter->setPen(QPen(m_color, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(m_filled ? QBrush(m_color) : QBrush(Qt::NoBrush));
    painter->drawPolygon(star);
}

} // namespace kovamo
