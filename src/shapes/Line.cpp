#include "Line.h"

namespace kovamo {

QPainterPath Line::path(const QRectF& rect) const {
    QPainterPath path;
    addPolyline(path, mapUnitPoints(unitPoints, rect));
    return path;
}

QPainterPath QuadCurve::path(const QRectF& rect) const {
    QPainterPath path;
    addSmoothCurve(path, mapUnitPoints(unitPoints, rect));
    return path;
}

} // namespace kovamo
