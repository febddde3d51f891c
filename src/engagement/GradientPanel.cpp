#include "GradientPanel.h"

#include "platform/desktop/SystemColors.h"
#include "platform/views/Shape.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

namespace kovamo {

namespace {

constexpr double shadowOpacity = 0.33;

// How dark a blurred edge is at `distance` outside of it, as a fraction, for a blur of radius 1.
// The blur is a normal distribution; its radius is two standard deviations.
double darkness(double distance) {
    return std::erfc(std::numbers::sqrt2 * distance) / 2;
}

// A blurred shape is painted as many faint ones, each a little larger than the one above.
void paintShadow(QPainter& painter, const QRectF& rect, double radius, double blur) {
    QColor shade = resolved(SystemColor::black, ColorScheme::light);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    for (double d = blur; d > -blur; --d) {
        const double share = darkness((d - 1) / blur) - darkness(d / blur);
        shade.setAlphaF(static_cast<float>(shadowOpacity * share));
        painter.fillPath(RoundedRectangle{radius + d, true}.path(rect.adjusted(-d, -d, d, d)),
                         shade);
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
    painter->fillPath(RoundedRectangle{m_cornerRadius, true}.path(panel), gradient);
}

} // namespace kovamo
