#include "Hand.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTest>

namespace kovamo {

namespace {

QQuickItem* findBelow(QQuickItem* root, const std::function<bool(const QQuickItem&)>& fits) {
    const QList<QQuickItem*> children = root->childItems();
    for (auto child = children.rbegin(); child != children.rend(); ++child)
        if (QQuickItem* found = findBelow(*child, fits))
            return found;
    return fits(*root) ? root : nullptr;
}

} // namespace

QQuickItem* findItem(const QQuickWindow& window,
                     const std::function<bool(const QQuickItem&)>& fits) {
    return findBelow(window.contentItem(), fits);
}

QQuickItem* shown(const QQuickWindow& window, const QString& text, bool expected) {
    QQuickItem* found = findItem(window, [&text](const QQuickItem& item) {
        return item.isVisible() && item.inherits("QQuickText") && item.property("text") == text;
    });
    if (expected && found == nullptr)
        ADD_FAILURE() << "nothing shows " << text.toStdString();
    return found;
}

QQuickItem* named(const QQuickWindow& window, const QString& name, const QString& description) {
    return findItem(window, [&](const QQuickItem& item) {
        auto* interface = QAccessible::queryAccessibleInterface(&const_cast<QQuickItem&>(item));
        return item.isVisible() && interface && interface->text(QAccessible::Name) == name &&
               (description.isEmpty() || interface->text(QAccessible::Description) == description);
    });
}

void failOnWarnings(const QQmlEngine& engine) {
    QObject::connect(&engine, &QQmlEngine::warnings, [](const QList<QQmlError>& errors) {
        for (const QQmlError& error : errors)
            ADD_FAILURE() << error.toString().toStdString();
    });
}

QPoint middle(const QQuickItem* item) {
    return item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
}

void click(QQuickWindow& window, QPoint point, Qt::MouseButton button) {
    QTest::mouseClick(&window, button, {}, point);
    // The next click is no double click of this one.
    QTest::lastMouseTimestamp += 10000;
}

void drag(QQuickWindow& window, QPoint from, QPoint by, int milliseconds) {
    constexpr int steps = 20;
    QTest::mousePress(&window, Qt::LeftButton, {}, from);
    for (int step = 1; step <= steps; ++step) {
        QTest::lastMouseTimestamp += milliseconds / steps;
        QTest::mouseMove(&window, from + by * step / steps);
    }
    QTest::mouseRelease(&window, Qt::LeftButton, {}, from + by);
    QTest::lastMouseTimestamp += 10000;
}

void type(const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QGuiApplication::sendEvent(QGuiApplication::focusObject(), &event);
}

} // namespace kovamo
