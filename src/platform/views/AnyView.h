#pragma once

#include "EnvironmentValues.h"

#include <QPainter>
#include <QtQml/qqmlregistration.h>
#include <functional>

namespace kovamo {

/// A view: a value that paints itself into a rectangle. It leaves the painter's state as it found
/// it, but for pen, brush and hints, and may paint outside of the rectangle: nothing clips it.
template<class V>
concept View = std::copyable<V> && requires(const V view, QPainter& painter, const QRectF& rect,
                                            const EnvironmentValues& environment) {
    view.paint(painter, rect, environment);
};

/// A view of any type. Copies share the one view they hold; an empty one paints nothing.
class AnyView {
    Q_GADGET
    QML_VALUE_TYPE(anyView)

  public:
    AnyView() = default;

    // In this order: whether AnyView can be copied is not asked before it is told apart.
    template<class V>
    requires(!std::same_as<V, AnyView> && View<V>) AnyView(V view)
        : m_paint(std::make_shared<const Paint>(
              [held = std::move(view)](QPainter& painter, const QRectF& rect,
                                       const EnvironmentValues& environment) {
                  held.paint(painter, rect, environment);
              })) {}

    void paint(QPainter& painter, const QRectF& rect, const EnvironmentValues& environment) const {
        if (m_paint)
            (*m_paint)(painter, rect, environment);
    }

    /// Equal handles hold the same view; views made apart are never equal.
    friend bool operator==(const AnyView&, const AnyView&) = default;

  private:
    using Paint = std::function<void(QPainter&, const QRectF&, const EnvironmentValues&)>;
    std::shared_ptr<const Paint> m_paint;
};

} // namespace kovamo
