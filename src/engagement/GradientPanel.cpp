#include "GradientPanel.h"

#include "platform/foundation/SystemColors.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

namespace kovamo {

namespace {

constexpr double shadowOpacity = 0.33;

// A rectangle whose corners begin early and curve ever more towards their middle, where they meet
// the circle's: each is one cubic curve of extent e, whose handle k·e follows from its middle, at
// e·(4 - 3k)/8 from either side, lying on the circle, at r·(1 - 1/√2).
QPainterPath continuousRectangle(const QRectF& rect, double radius) {
    const double half = std::min(rect.width(), rect.height()) / 2;
    const double r = std::clamp(radius, 0.0, half);
    const double e = std::min(1.25 * r, half);
    const double handle = e > 0 ? (4 * e - 8 * r * (1 - 1 / std::numbers::sqrt2)) / 3 : 0;
    QPainterPath path;
    path.moveTo(rect.left() + e, rect.top());
    const auto corner = [&](QPointF vertex, QPointF in, QPointF out) {
        path.lineTo(vertex - in * e);
        path.cubicTo(vertex - in * (e - handle), vertex + out * (e - handle), vertex + out * e);
    };
    corner(rect.topRight(), {1, 0}, {0, 1});
    corner(rect.bottomRight(), {0, 1}, {-1, 0});
    corner(rect.bottomLeft(), {-1, 0}, {0, -1});
    corner(rect.topLeft(), {0, -1}, {1, 0});
    path.closeSubpath();
    return path;
}

// The share of a blurred edge's darkness at `distance` outside of it, for a blur of radius 1: the
// normal distribution whose second deviation is the radius.
double darkness(double distance) {
    return std::erfc(std::numbers::sqrt2 * distance) / 2;
}

// A blurred shape is a stack of faint ones, each a little larger than the next.
void paintShadow(QPainter& painter, const QRectF& rect, double radius, double blur) {
    QColor shade = resolved(SystemColor::black, ColorScheme::light);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    for (double d = blur; d > -blur; --d) {
        const double share = darkness((d - 1) / blur) - darkness(d / blur);
        shade.setAlphaF(static_cast<float>(shadowOpacity * share));
        painter.fillPath(continuousRectangle(rect.adjusted(-d, -d, d, d), radius + d), shade);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

} // namespace

GradientPanel::GradientPanel(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(this, &GradientPanel::changed, this, [this] { update(); });
}

void GradientPanel::paint(QPainter* painter) {
    const double extent = m_shadowExtent;
    const QRectF panel = boundingRect().adjusted(extent, extent, -extent, -extent);
    QLinearGradient gradient(panel.topLeft(), panel.topRight());
    gradient.setColorAt(0, m_leftColor);
    gradient.setColorAt(1, m_rightColor);
    paintShadow(*painter, panel, m_cornerRadius, extent);
    painter->fillPath(continuousRectangle(panel, m_cornerRadius), gradient);
}

} // namespace kovamo
