#pragma once

#include "platform/views/AnyView.h"
#include "platform/views/ShapeStyle.h"

#include <QMetaType>
#include <QString>
#include <optional>
#include <vector>

namespace kovamo {

/// One line of a chart's legend: what a colour stands for.
struct LegendEntry {
    Q_GADGET
    QML_VALUE_TYPE(legendEntry)
    Q_PROPERTY(QString label MEMBER label CONSTANT)
    Q_PROPERTY(kovamo::AnyView swatch READ swatch CONSTANT)

  public:
    QString label;
    Color color;

    /// A dot in the colour.
    [[nodiscard]] AnyView swatch() const;
};

/// A value of a chart: where it stands in the plot, in points, its words, and its colour.
struct Reading {
    QPointF position;
    QString text;
    Color color;
};

/// A chart to look at closely: a value with a title, a legend, a plot, and, of the plot drawn in a
/// size, its values in order and the one that is nearest to a place.
template<class C>
concept DisplayChart = std::copyable<C> && requires(const C chart, QPointF place, QSizeF size) {
    { chart.title } -> std::convertible_to<QString>;
    { chart.legend() } -> std::same_as<std::vector<LegendEntry>>;
    { chart.plot() } -> View;
    { chart.readings(size) } -> std::same_as<std::vector<Reading>>;
    { chart.reading(place, size) } -> std::same_as<std::optional<Reading>>;
};

/// What the magnifier shows of one value of a plot.
struct MagnifiedReading {
    Q_GADGET
    QML_VALUE_TYPE(magnifiedReading)
    Q_PROPERTY(QPointF position MEMBER position CONSTANT)
    Q_PROPERTY(QString text MEMBER text CONSTANT)
    Q_PROPERTY(kovamo::AnyView lens MEMBER lens CONSTANT)

  public:
    QPointF position;
    QString text;
    AnyView lens;
};

/// A display chart of any type, for QML. Copies share the chart.
class AnyDisplayChart {
    Q_GADGET
    QML_VALUE_TYPE(displayChart)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QList<kovamo::LegendEntry> legend READ legend CONSTANT)
    Q_PROPERTY(kovamo::AnyView plot READ plot CONSTANT)
    Q_PROPERTY(int count READ count CONSTANT)

  public:
    AnyDisplayChart() = default;

    template<class C>
    requires(!std::same_as<C, AnyDisplayChart> && DisplayChart<C>) AnyDisplayChart(const C& chart)
        : m_title(chart.title), m_plot(chart.plot()),
          m_reading(std::make_shared<const ReadingAt>(
              [chart](QPointF place, QSizeF size) { return chart.reading(place, size); })),
          m_readings(std::make_shared<const Readings>(
              [chart](QSizeF size) { return chart.readings(size); })) {
        for (LegendEntry& entry : chart.legend())
            m_legend.append(std::move(entry));
    }

    [[nodiscard]] QString title() const { return m_title; }
    [[nodiscard]] QList<LegendEntry> legend() const { return m_legend; }
    [[nodiscard]] AnyView plot() const { return m_plot; }
    /// How many values there are to read.
    [[nodiscard]] int count() const;

    /// The value nearest to `place` in a plot of `size`, and a lens over it; without words where
    /// the chart has none.
    Q_INVOKABLE kovamo::MagnifiedReading magnified(QPointF place, QSizeF size) const;
    /// The value at `index`, and a lens over it; without words where there is none.
    Q_INVOKABLE kovamo::MagnifiedReading magnifiedAt(int index, QSizeF size) const;

  private:
    [[nodiscard]] MagnifiedReading lensOver(const Reading& reading, QSizeF size) const;

    using ReadingAt = std::function<std::optional<Reading>(QPointF, QSizeF)>;
    using Readings = std::function<std::vector<Reading>(QSizeF)>;
    QString m_title;
    QList<LegendEntry> m_legend;
    AnyView m_plot;
    std::shared_ptr<const ReadingAt> m_reading;
    std::shared_ptr<const Readings> m_readings;
};

} // namespace kovamo
