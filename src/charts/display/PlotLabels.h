#pragma once

#include "charts/AxisLabels.h"

#include <QString>

namespace kovamo {

/// Words along an axis that is `length` points long, in equal shares; where the shares are shorter
/// than `room` points, so many words are left out that the others have it.
[[nodiscard]] AxisLabels plotLabels(Qt::Orientation axis, const std::vector<QString>& words,
                                    double length, double room);

} // namespace kovamo
