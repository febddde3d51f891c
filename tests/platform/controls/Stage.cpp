#include "Stage.h"

#include <QQmlComponent>
#include <gtest/gtest.h>

namespace kovamo {

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
    QQuickItem* found = findItem(
        m_window, [name](const QQuickItem& i) { return i.objectName() == QLatin1String(name); });
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

} // namespace kovamo
