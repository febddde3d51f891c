#pragma once

#include "AnyView.h"
#include "ShapeStyle.h"

#include <QString>

namespace kovamo {

/// One line of plain text in the middle of its rectangle, elided where it is too long for it.
struct Text {
    QString string;
    Color color;
    /// The size of the letters in points.
    int size = 13;

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const;
};

} // namespace kovamo
