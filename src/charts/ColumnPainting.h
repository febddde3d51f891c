#pragma once

#include "ColumnLayout.h"

#include <QPainter>

namespace kovamo {

/// The frames of the columns worth painting with `painter`: see `visibleColumnFrames`, with
/// the pixel of the painter's device.
[[nodiscard]] std::vector<QRectF> paintedColumnFrames(const QPainter& painter,
                                                      std::span<const ColumnData> columns,
                                                      double spacing, const QRectF& bounds);

/// Paints the line that the columns of a two-sided chart stand on, across its middle from edge to
/// edge, along `axis`.
void paintZeroLine(QPainter& painter, const QRectF& rect, Qt::Orientation axis,
                   const EnvironmentValues& environment);

} // namespace kovamo
