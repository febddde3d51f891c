#include "ChartSeries.h"

#include <QLocale>
#include <algorithm>
#include <cmath>

namespace kovamo {

void PlotScale::include(std::span<const double> values) {
    for (const double value : values) {
        if (std::isfinite(value)) {
            lowest = std::min(lowest, value);
            highest = std::max(highest, value);
        }
    }
}

std::vector<double> PlotScale::fractions(std::span<const double> values) const {
    // Halved, because the difference of the largest doubles would be infinite.
    const double range = highest / 2 - lowest / 2;
    std::vector<double> fractions;
    for (const double value : values)
        fractions.push_back(range > 0 ? (value / 2 - lowest / 2) / range : value);
    return fractions;
}

QString readingText(const QString& name, double value) {
    const QString words = QLocale().toString(value, 'f', QLocale::FloatingPointShortest);
    return name.isEmpty() ? words : name + QStringLiteral(", ") + words;
}

} // namespace kovamo
