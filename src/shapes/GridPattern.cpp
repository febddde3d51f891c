#include "GridPattern.h"

namespace kovamo {

QPainterPath GridPattern::path(const QRectF& rect) const {
    const double width = rect.width() - 2 * inset, height = rect.height() - 2 * inset;
    QPainterPath path;
    if (width < 0 || height < 0)
        return path;
    const auto segment = [&](QPointF from, QPointF to) {
        path.moveTo(from);
        path.lineTo(to);
    };
    for (int i = 0; horizontalLines >= 2 && i < horizontalLines; ++i) {
        const double t = i * (1. / (horizontalLines - 1));
        segment({0, height - t * height}, {width, height - t * height});
    }
    for (int i = 0; verticalLines >= 2 && i < verticalLines; ++i) {
        const double t = i * (1. / (verticalLines - 1));
        segment({width * t, height}, {width * t, 0});
    }
    path.translate(inset, inset);
    return path;
}

} // namespace kovamo
