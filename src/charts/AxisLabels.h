#pragma once

#include "platform/views/AnyView.h"

#include <vector>

namespace kovamo {

/// Labels spread along an axis, each in an equal share of it, as columns without gaps would stand:
/// a horizontal axis from left to right, a vertical one from the bottom up.
struct AxisLabels {
    Qt::Orientation axis = Qt::Horizontal;
    std::vector<AnyView> labels;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const;
};

} // namespace kovamo
