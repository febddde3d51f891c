#include "Geometry.h"

#include <cmath>

namespace kovamo {

QPointF mapUnitPoint(PlotPoint u, const QRectF& rect) {
    return {rect.width() * u.x, rect.height() - rect.height() * u.y};
}

std::vector<QPointF> mapUnitPoints(const std::vector<PlotPoint>& unitPoints, const QRectF& rect) {
    std::vector<QPointF> points;
    points.reserve(unitPoints.size());
    for (const PlotPoint& unitPoint : unitPoints) {
        const QPointF point = mapUnitPoint(unitPoint, rect);
        if (std::isfinite(point.x()) && std::isfinite(point.y()))
            points.push_back(point);
    }
    return points;
}

QPointF midPoint(QPointF p1, QPointF p2) {
    return {(p1.x() + p2.x()) * 0.5, (p1.y() + p2.y()) * 0.5};
}

QPointF controlPoint(QPointF p1, QPointF p2) {
    const QPointF middle = midPoint(p1, p2);
    const double distance = std::abs(p1.y() - middle.y());
    if (p2.y() < p1.y())
        return {middle.x(), middle.y() + distance};
    if (p1.y() < p2.y())
        return {middle.x(), middle.y() - distance};
    return middle;
}

void addPolyline(QPainterPath& path, const std::vector<QPointF>& points) {
    for (const QPointF& point : points)
        path.elementCount() == 0 ? path.moveTo(point) : path.lineTo(point);
}

void addSmoothCurve(QPainterPath& path, const std::vector<QPointF>& points) {
    for (const QPointF& p2 : points) {
        if (path.elementCount() == 0) {
            path.moveTo(p2);
            continue;
        }
        const QPointF p1 = path.currentPosition();
        const QPointF middle = midPoint(p1, p2);
        path.quadTo(controlPoint(p1, middle), middle);
        path.quadTo(controlPoint(p2, middle), p2);
    }
}

} // namespace kovamo
