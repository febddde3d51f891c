#pragma once

#include "charts/display/ChartSeries.h"

namespace kovamo {

/// `count` fractions that look like real ones, always the same, the last `negatives` of them below
/// 0; another `part` gives other ones.
[[nodiscard]] std::vector<double> sampleFractions(double count, double negatives = 0, int part = 0);

/// `count` rows of `parts` fractions each, which together stay below 1.
[[nodiscard]] std::vector<std::vector<double>> sampleRows(double count, double parts);

/// A series of whole amounts under a name.
[[nodiscard]] ChartSeries sampleSeries(const char* name, SystemColor color, double count,
                                       double negatives = 0, int part = 0);

/// The names of the first `count` months, then of further years' months.
[[nodiscard]] std::vector<QString> sampleMonths(double count);

} // namespace kovamo
