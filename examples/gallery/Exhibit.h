#pragma once

#include "charts/display/DisplayChart.h"

#include <QObject>
#include <QQmlEngine>

namespace kovamo {

/// One thing that an exhibit takes, as a slider sets it.
class ExhibitParameter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Parameters belong to an exhibit")
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(double from READ from CONSTANT)
    Q_PROPERTY(double to READ to CONSTANT)
    Q_PROPERTY(double stepSize READ stepSize CONSTANT)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged)

  public:
    /// A slider's range, step and first value, under the name of what it sets.
    struct Range {
        const char* name;
        double from;
        double to;
        double stepSize;
        double value;
    };

    ExhibitParameter(const Range& range, QObject* parent) : QObject(parent), m_range(range) {}

    [[nodiscard]] QString name() const { return QString::fromLatin1(m_range.name); }
    [[nodiscard]] double from() const { return m_range.from; }
    [[nodiscard]] double to() const { return m_range.to; }
    [[nodiscard]] double stepSize() const { return m_range.stepSize; }
    [[nodiscard]] double value() const { return m_range.value; }
    void setValue(double value);

  Q_SIGNALS:
    void valueChanged();

  private:
    Range m_range;
};

/// What the gallery shows of one value: a view, or a chart to look at closely, made anew of the
/// parameters whenever one of them changes.
class Exhibit : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Exhibits belong to a gallery")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QQmlListProperty<kovamo::ExhibitParameter> parameters READ parameters CONSTANT)
    Q_PROPERTY(kovamo::AnyView view READ view NOTIFY changed)
    Q_PROPERTY(kovamo::AnyDisplayChart chart READ chart NOTIFY changed)
    Q_PROPERTY(bool closeUp READ isCloseUp CONSTANT)

  public:
    /// The parameters' values, in their order.
    using Values = QList<double>;

    Exhibit(const char* title, std::initializer_list<ExhibitParameter::Range> parameters,
            std::function<AnyView(const Values&)> view, QObject* parent);
    Exhibit(const char* title, std::initializer_list<ExhibitParameter::Range> parameters,
            std::function<AnyDisplayChart(const Values&)> chart, QObject* parent);

    [[nodiscard]] QString title() const { return m_title; }
    [[nodiscard]] QQmlListProperty<ExhibitParameter> parameters() { return {this, &m_parameters}; }
    [[nodiscard]] AnyView view() const { return m_view ? m_view(values()) : AnyView(); }
    [[nodiscard]] AnyDisplayChart chart() const {
        return m_chart ? m_chart(values()) : AnyDisplayChart();
    }
    /// Whether it is a chart with title, legend and magnifier of its own.
    [[nodiscard]] bool isCloseUp() const { return m_chart != nullptr; }

  Q_SIGNALS:
    void changed();

  private:
    void addParameters(std::initializer_list<ExhibitParameter::Range> parameters);
    [[nodiscard]] Values values() const;

    QString m_title;
    QList<ExhibitParameter*> m_parameters;
    std::function<AnyView(const Values&)> m_view;
    std::function<AnyDisplayChart(const Values&)> m_chart;
};

} // namespace kovamo
