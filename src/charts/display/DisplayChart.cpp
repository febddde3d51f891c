#include "DisplayChart.h"

#include "Magnifier.h"
#include "platform/views/ShapeViews.h"

namespace kovamo {

AnyView LegendEntry::swatch() const {
    return FilledShape{Capsule{}, color};
}

int AnyDisplayChart::count() const {
    return m_readings ? static_cast<int>((*m_readings)(QSizeF(1, 1)).size()) : 0;
}

MagnifiedReading AnyDisplayChart::magnified(QPointF place, QSizeF size) const {
    const auto reading = m_reading ? (*m_reading)(place, size) : std::nullopt;
    return reading ? lensOver(*reading, size) : MagnifiedReading();
}

MagnifiedReading AnyDisplayChart::magnifiedAt(int index, QSizeF size) const {
    const auto all = m_readings ? (*m_readings)(size) : std::vector<Reading>();
    const auto at = static_cast<std::size_t>(index);
    return index >= 0 && at < all.size() ? lensOver(all[at], size) : MagnifiedReading();
}

MagnifiedReading AnyDisplayChart::lensOver(const Reading& reading, QSizeF size) const {
    return {reading.position, reading.text,
            Magnifier{m_plot, size, reading.position, reading.color}};
}

} // namespace kovamo
