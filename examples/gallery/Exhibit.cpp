#include "Exhibit.h"

namespace kovamo {

void ExhibitParameter::setValue(double value) {
    if (value == m_range.value)
        return;
    m_range.value = value;
    Q_EMIT valueChanged();
}

Exhibit::Exhibit(const char* title, std::initializer_list<ExhibitParameter::Range> parameters,
                 std::function<AnyView(const Values&)> view, QObject* parent)
    : QObject(parent), m_title(QString::fromLatin1(title)), m_view(std::move(view)) {
    addParameters(parameters);
}

Exhibit::Exhibit(const char* title, std::initializer_list<ExhibitParameter::Range> parameters,
                 std::function<AnyDisplayChart(const Values&)> chart, QObject* parent)
    : QObject(parent), m_title(QString::fromLatin1(title)), m_chart(std::move(chart)) {
    addParameters(parameters);
}

void Exhibit::addParameters(std::initializer_list<ExhibitParameter::Range> parameters) {
    for (const ExhibitParameter::Range& range : parameters) {
        m_parameters.append(new ExhibitParameter(range, this));
        connect(m_parameters.last(), &ExhibitParameter::valueChanged, this, &Exhibit::changed);
    }
}

Exhibit::Values Exhibit::values() const {
    Values values;
    for (const ExhibitParameter* parameter : m_parameters)
        values.append(parameter->value());
    return values;
}

} // namespace kovamo
