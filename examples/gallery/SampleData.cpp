#include "SampleData.h"

#include <QLocale>
#include <cmath>

namespace kovamo {

std::vector<double> sampleFractions(double count, double negatives, int part) {
    std::vector<double> fractions;
    for (int i = 0; i < count; ++i) {
        const double wave =
            0.55 + 0.25 * std::sin(0.9 * i + part) + 0.2 * std::sin(2.3 * i + 2 * part);
        fractions.push_back(i < count - negatives ? wave : -wave);
    }
    return fractions;
}

std::vector<std::vector<double>> sampleRows(double count, double parts) {
    std::vector<std::vector<double>> rows(static_cast<std::size_t>(count));
    for (int part = 0; part < parts; ++part) {
        const std::vector<double> fractions = sampleFractions(count, 0, part);
        for (std::size_t i = 0; i < rows.size(); ++i)
            rows[i].push_back(fractions[i] / parts);
    }
    return rows;
}

ChartSeries sampleSeries(const char* name, SystemColor color, double count, double negatives,
                         int part) {
    ChartSeries series{QString::fromLatin1(name), sampleFractions(count, negatives, part), {color}};
    for (double& value : series.values)
        value = std::round(1000 * value);
    return series;
}

std::vector<QString> sampleMonths(double count) {
    std::vector<QString> names;
    for (int i = 0; i < count; ++i)
        names.push_back(QLocale().standaloneMonthName(i % 12 + 1, QLocale::ShortFormat));
    return names;
}

} // namespace kovamo
