#include "Focusable.h"

namespace kovamo {

void Focusable::focusInEvent(QFocusEvent* event) {
    QQuickItem::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    setVisualFocus(reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                   reason == Qt::ShortcutFocusReason);
}

void Focusable::focusOutEvent(QFocusEvent* event) {
    QQuickItem::focusOutEvent(event);
    setVisualFocus(false);
}

void Focusable::setVisualFocus(bool visualFocus) {
    if (visualFocus == m_visualFocus)
        return;
    m_visualFocus = visualFocus;
    Q_EMIT visualFocusChanged();
}

} // namespace kovamo
