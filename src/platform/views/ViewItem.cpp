#include "ViewItem.h"

namespace kovamo {

ViewItem::ViewItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(&SystemColors::shared(), &SystemColors::changed, this, [this] { update(); });
}

void ViewItem::setView(const AnyView& view) {
    if (view == m_view)
        return;
    m_view = view;
    update();
    Q_EMIT viewChanged();
}

void ViewItem::paint(QPainter* painter) {
    const auto environment =
        EnvironmentValues().setting<ColorSchemeKey>(SystemColors::shared().colorScheme());
    m_view.paint(*painter, boundingRect(), environment);
}

} // namespace kovamo
