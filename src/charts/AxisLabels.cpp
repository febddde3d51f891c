#include "AxisLabels.h"

namespace kovamo {

void AxisLabels::paint(QPainter& painter, const QRectF& rect,
                       const EnvironmentValues& environment) const {
    const auto count = static_cast<double>(labels.size());
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const auto place = static_cast<double>(i);
        const QSizeF share = axis == Qt::Horizontal ? QSizeF(rect.width() / count, rect.height())
                                                    : QSizeF(rect.width(), rect.height() / count);
        const QPointF corner = axis == Qt::Horizontal
                                   ? rect.topLeft() + QPointF(place * share.width(), 0)
                                   : rect.bottomLeft() - QPointF(0, (place + 1) * share.height());
        labels[i].paint(painter, {corner, share}, environment);
    }
}

} // namespace kovamo
