#include "ShapeStyle.h"

#include <QLinearGradient>

namespace kovamo {

QColor Color::resolved(const EnvironmentValues& environment) const {
    QColor color = kovamo::resolved(name, environment.value<ColorSchemeKey>());
    color.setAlphaF(color.alphaF() * static_cast<float>(opacity));
    return color;
}

QBrush Color::brush(const QRectF&, const EnvironmentValues& environment) const {
    return resolved(environment);
}

QBrush LinearGradient::brush(const QRectF& rect, const EnvironmentValues& environment) const {
    if (colors.empty())
        return Qt::NoBrush;
    if (colors.size() == 1)
        return colors.front().resolved(environment);
    QGradientStops stops;
    const auto last = static_cast<double>(colors.size() - 1);
    for (const Color& color : colors)
        stops.append({static_cast<double>(stops.size()) / last, color.resolved(environment)});
    QLinearGradient gradient(startPoint.in(rect), endPoint.in(rect));
    gradient.setStops(stops);
    return gradient;
}

} // namespace kovamo
