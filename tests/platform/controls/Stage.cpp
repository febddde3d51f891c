#include "Stage.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QQmlComponent>
#include <gtest/gtest.h>

namespace kovamo {

namespace {

QQuickItem* findItem(QQuickItem* root, const std::function<bool(QQuickItem*)>& fits) {
    if (fits(root))
        return root;
    for (QQuickItem* child : root->childItems())
        if (QQuickItem* found = findItem(child, fits))
            return found;
    return nullptr;
}

} // namespace

Stage::Stage(const char* body, bool reducedMotion) {
    m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QObject::connect(&m_engine, &QQmlEngine::warnings, [](const QList<QQmlError>& errors) {
        for (const QQmlError& error : errors)
            ADD_FAILURE() << error.toString().toStdString();
    });
    QQmlComponent component(&m_engine);
    component.setData("import QtQuick\nimport Kovamo.Controls\nimport Kovamo.Foundation\n"
                      "Item { property string log\nComponent.onCompleted: Motion.reduced = " +
                          QByteArray(reducedMotion ? "true" : "false") + "\n" + body + "\n}",
                      QUrl(QStringLiteral("qrc:/stage.qml")));
    m_root.reset(component.create());
    auto* root = qobject_cast<QQuickItem*>(m_root.get());
    if (root == nullptr)
        qFatal("%s", qPrintable(component.errorString()));
    m_window.resize(390, 844);
    root->setParentItem(m_window.contentItem());
    root->setSize(m_window.size());
    m_window.show();
    m_window.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
}

Stage::~Stage() {
    m_root.reset();
}

QQuickItem* Stage::item(const char* name) const {
    if (*name == '\0')
        return qobject_cast<QQuickItem*>(m_root.get());
    QQuickItem* found = findItem(m_window.contentItem(), [name](const QQuickItem* i) {
        return i->objectName() == QLatin1String(name);
    });
    if (found == nullptr)
        ADD_FAILURE() << "no item " << name;
    return found;
}

QVariant Stage::get(const char* property, const char* name) const {
    return item(name)->property(property);
}

void Stage::set(const char* property, const QVariant& value, const char* name) {
    EXPECT_TRUE(item(name)->setProperty(property, value)) << property;
}

QQuickItem* Stage::showing(const QString& text) const {
    QQuickItem* found = findItem(m_window.contentItem(), [&text](const QQuickItem* i) {
        return i->isVisible() && i->inherits("QQuickText") && i->property("text") == text;
    });
    if (found == nullptr)
        ADD_FAILURE() << "nothing shows " << text.toStdString();
    return found;
}

QPoint Stage::middle(const QQuickItem* item) {
    return item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
}

void Stage::click(QPoint point, Qt::MouseButton button) {
    QTest::mouseClick(&m_window, button, {}, point);
    // The next click is no double click of this one.
    QTest::lastMouseTimestamp += 10000;
}

void Stage::drag(QPoint from, QPoint by, int milliseconds) {
    constexpr int steps = 20;
    QTest::mousePress(&m_window, Qt::LeftButton, {}, from);
    for (int step = 1; step <= steps; ++step) {
        QTest::lastMouseTimestamp += milliseconds / steps;
        QTest::mouseMove(&m_window, from + by * step / steps);
    }
    QTest::mouseRelease(&m_window, Qt::LeftButton, {}, from + by);
    QTest::lastMouseTimestamp += 10000;
}

void Stage::type(const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QGuiApplication::sendEvent(QGuiApplication::focusObject(), &event);
}

} // namespace kovamo
