#include "PlotLabels.h"

#include "platform/views/Text.h"
#include "platform/views/ViewModifiers.h"

#include <algorithm>
#include <cmath>

namespace kovamo {

AxisLabels plotLabels(Qt::Orientation axis, const std::vector<QString>& words, double length,
                      double room) {
    const double share = std::max(1., length) / std::max(1., static_cast<double>(words.size()));
    const auto stride = static_cast<std::size_t>(std::max(1., std::ceil(room / share)));
    const double beyond = share * static_cast<double>(stride - 1) / 2;
    const QMarginsF margins = axis == Qt::Horizontal ? QMarginsF(-beyond, 0, -beyond, 0)
                                                     : QMarginsF(0, -beyond, 0, -beyond);
    AxisLabels labels{axis, {}};
    for (std::size_t i = 0; i < words.size(); ++i) {
        const Text text{words[i], Color{SystemColor::secondaryLabel}, 11};
        labels.labels.push_back(i % stride == stride / 2 ? PaddedView{text, margins} : AnyView());
    }
    return labels;
}

} // namespace kovamo
