#include "Focusable.h"

#include <QGuiApplication>

namespace kovamo {

namespace {

/// Sees by the app's events what the user last used. The key that brings the focus into sight goes
/// to an item that does not show it yet.
class LastUsed : public QObject {
  public:
    static const LastUsed& shared() {
        static LastUsed& instance = *new LastUsed;
        return instance;
    }

    [[nodiscard]] bool isKeyboard() const { return m_isKeyboard; }

    bool eventFilter(QObject*, QEvent* event) override {
        const QEvent::Type type = event->type();
        if (type == QEvent::KeyPress || type == QEvent::MouseButtonPress ||
            type == QEvent::TouchBegin || type == QEvent::Wheel) {
            m_isKeyboard = type == QEvent::KeyPress;
            QMetaObject::invokeMethod(this, &LastUsed::show, Qt::QueuedConnection);
        }
        return false;
    }

  private:
    void show() const {
        if (auto* focused = qobject_cast<Focusable*>(QGuiApplication::focusObject()))
            focused->setVisualFocus(m_isKeyboard);
    }

    // Its parent is the application, which deletes it.
    LastUsed() : QObject(QCoreApplication::instance()) {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool m_isKeyboard = false;
};

} // namespace

Focusable::Focusable(QQuickItem* parent) : QQuickItem(parent) {
    static_cast<void>(LastUsed::shared());
}

void Focusable::focusInEvent(QFocusEvent* event) {
    QQuickItem::focusInEvent(event);
    setVisualFocus(LastUsed::shared().isKeyboard() && event->reason() != Qt::MouseFocusReason);
    handOnLater();
}

void Focusable::focusOutEvent(QFocusEvent* event) {
    QQuickItem::focusOutEvent(event);
    setVisualFocus(false);
}

void Focusable::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    event->setAccepted(key == Qt::Key_Enter || key == Qt::Key_Return || key == Qt::Key_Space);
    if (event->isAccepted() && !event->isAutoRepeat())
        Q_EMIT activated();
}

void Focusable::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickItem::itemChange(change, data);
    if (change == ItemVisibleHasChanged && hasActiveFocus())
        handOnLater();
}

void Focusable::handOnLater() {
    if (isVisible())
        return;
    // Queued: items that are hidden together with this one must not get the focus.
    const auto handOn = [this] {
        if (hasActiveFocus() && !isVisible())
            nextItemInFocusChain()->forceActiveFocus(Qt::OtherFocusReason);
    };
    QMetaObject::invokeMethod(this, handOn, Qt::QueuedConnection);
}

void Focusable::setVisualFocus(bool visualFocus) {
    if (visualFocus == m_visualFocus)
        return;
    m_visualFocus = visualFocus;
    Q_EMIT visualFocusChanged();
}

} // namespace kovamo
