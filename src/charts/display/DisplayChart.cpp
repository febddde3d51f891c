#include "DisplayChart.h"

#include "Magnifier.h"
#include "platform/views/ShapeViews.h"

namespace kovamo {

AnyView LegendEntry::swatch() const {
    return FilledShape{Capsule{}, color};
}

MagnifiedReading AnyDisplayChart::magnified(QPointF place, QSizeF size) const {
    const auto reading = m_reading ? (*m_reading)(place, size) : std::nullopt;
    if (!reading)
        return {};
    return {reading->position, reading->text,
            Magnifier{m_plot, size, reading->position, reading->color}};
}

} // namespace kovamo
