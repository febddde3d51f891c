#pragma once

#include "Exhibit.h"

namespace kovamo {

/// Every shape, chart style and display chart on sample data, each with what it takes to turn at.
class Gallery : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQmlListProperty<kovamo::Exhibit> exhibits READ exhibits CONSTANT)

  public:
    explicit Gallery(QObject* parent = nullptr);

    [[nodiscard]] QQmlListProperty<Exhibit> exhibits() { return {this, &m_exhibits}; }

    /// Changes between the light and the dark appearance.
    Q_INVOKABLE void toggleAppearance() const;

  private:
    template<class Make>
    void add(const char* title, std::initializer_list<ExhibitParameter::Range> parameters,
             Make make) {
        m_exhibits.append(new Exhibit(title, parameters, std::move(make), this));
    }

    void addShapes();
    void addStyles();
    void addDisplayCharts();

    QList<Exhibit*> m_exhibits;
};

} // namespace kovamo
